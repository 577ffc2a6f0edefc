// SPDX-License-Identifier: MIT
#include "foundation/FailureDetail.h"

#include "resources/Resources.h"

#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class FailureDetailTest : public QObject
{
    Q_OBJECT

private slots:
    void hasKeyAndValuesWithoutTexts()
    {
        QVERIFY(FailureDetail().isEmpty());
        QCOMPARE(FailureDetail().words(), QString());
        QVERIFY(!FailureDetail("DETAIL_DAMAGED").isEmpty());
        QCOMPARE(FailureDetail("DETAIL_SAME_FILE", {{"[FILE]", u"a.png"_s}}).words(), u"DETAIL_SAME_FILE a.png"_s);
    }

    void isWordedInTheUsersLanguage_data()
    {
        QTest::addColumn<FailureDetail>("detail");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("words");
        const FailureDetail file("DETAIL_SAME_FILE", {{"[FILE]", u"[FILE] of [COLOR].png"_s}});
        const FailureDetail color("DETAIL_UNKNOWN_COLOR", {{"[COLOR]", u"[NAME]"_s}, {"[NAME]", u"tint"_s}});
        QTest::newRow("free text") << FailureDetail(u"No such device"_s) << u"de_DE"_s << u"No such device"_s;
        QTest::newRow("English") << FailureDetail("DETAIL_DAMAGED") << u"en_GB"_s << u"damaged"_s;
        QTest::newRow("German") << FailureDetail("DETAIL_DAMAGED") << u"de_DE"_s << u"beschädigt"_s;
        QTest::newRow("brackets in a value") << file << u"en_GB"_s << u"[FILE] of [COLOR].png gives the same file"_s;
        QTest::newRow("values in any order") << color << u"en_GB"_s << u"tint: [NAME] is no color that is known"_s;
    }
    void isWordedInTheUsersLanguage()
    {
        QFETCH(FailureDetail, detail);
        QFETCH(QString, language);
        installTexts(*qApp, QLocale(language));
        QTEST(detail.words(), "words");
    }

    void comparesByContent()
    {
        const FailureDetail one("DETAIL_LINE", {{"[LINE]", u"3"_s}});
        QCOMPARE(one, FailureDetail("DETAIL_LINE", {{"[LINE]", u"3"_s}}));
        QVERIFY(one != FailureDetail("DETAIL_LINE", {{"[LINE]", u"4"_s}}));
        QVERIFY(one != FailureDetail("DETAIL_DAMAGED"));
    }
};

QTEST_GUILESS_MAIN(FailureDetailTest)
#include "FailureDetailTest.moc"
