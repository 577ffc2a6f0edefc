// SPDX-License-Identifier: MIT
#include "resources/Resources.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>
#include <QTranslator>

using namespace lumora;
using namespace Qt::StringLiterals;

class TextsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { loadResources(); }

    /// Each row has its own translators.
    void cleanup()
    {
        for (QTranslator *translator : qApp->findChildren<QTranslator *>())
            delete translator;
    }

    void languageOfTheLocaleIsTaken_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QLocale::Language>("language");
        QTest::addColumn<QString>("close");
        QTest::addColumn<QString>("cancel");
        QTest::newRow("English") << u"en_GB"_s << QLocale::English << u"Close"_s << u"Cancel"_s;
        QTest::newRow("German") << u"de_DE"_s << QLocale::German << u"Schließen"_s << u"Abbrechen"_s;
        QTest::newRow("German of another country") << u"de_AT"_s << QLocale::German << u"Schließen"_s << u"Abbrechen"_s;
        // A toolkit dialog in another language than the rest of the window would not help.
        QTest::newRow("a language without a table") << u"ar_EG"_s << QLocale::English << u"Close"_s << u"Cancel"_s;
    }
    void languageOfTheLocaleIsTaken()
    {
        QFETCH(QString, locale);
        QFETCH(QLocale::Language, language);
        QFETCH(QString, close);
        QFETCH(QString, cancel);
        QCOMPARE(installTexts(*qApp, QLocale(locale)).language(), language);
        QCOMPARE(qtTrId("CLOSE"), close);
        QCOMPARE(qtTrId("NO_SUCH_KEY"), u"NO_SUCH_KEY"_s);
        const QDialogButtonBox dialog(QDialogButtonBox::Cancel);
        QCOMPARE(dialog.button(QDialogButtonBox::Cancel)->text().remove(u'&'), cancel);
    }
};

QTEST_MAIN(TextsTest)
#include "TextsTest.moc"
