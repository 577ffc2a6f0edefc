// SPDX-License-Identifier: MIT
#include "color/TypingRule.h"

#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class TypingRuleTest : public QObject
{
    Q_OBJECT

private slots:
    void decidesWhatFollowsFromTyping_data()
    {
        QTest::addColumn<QString>("fieldText");
        QTest::addColumn<QString>("correctedText");
        QTest::addColumn<QString>("colorText");

        const QString none;
        QTest::newRow("a seventh digit undoes itself") << u"#1234567"_s << u"#123456"_s << u"123456"_s;
        QTest::newRow("a seventh digit without the hash sign") << u"1234567"_s << u"#123456"_s << u"123456"_s;
        QTest::newRow("a seventh digit in the middle costs the last") << u"#1239456"_s << u"#123945"_s << u"123945"_s;
        QTest::newRow("a long pasted text loses one character") << u"#123456789"_s << u"#12345678"_s << none;
        QTest::newRow("eight characters come down to seven") << u"12345678"_s << u"#1234567"_s << none;
        QTest::newRow("six digits make a color") << u"#34485e"_s << none << u"34485e"_s;
        QTest::newRow("six digits without the hash sign") << u"34485e"_s << none << u"34485e"_s;
        QTest::newRow("three digits make a color") << u"#abc"_s << none << u"abc"_s;
        QTest::newRow("hash signs anywhere do not count") << u"a#b#c#"_s << none << u"abc"_s;
        QTest::newRow("upper case is kept") << u"#80FF00"_s << none << u"80FF00"_s;
        QTest::newRow("letters that are no digits are left to the conversion") << u"#zzz"_s << none << u"zzz"_s;
        QTest::newRow("two digits do nothing") << u"#ab"_s << none << none;
        QTest::newRow("four digits do nothing") << u"#abcd"_s << none << none;
        QTest::newRow("five digits do nothing") << u"#abcde"_s << none << none;
        QTest::newRow("the hash sign alone does nothing") << u"#"_s << none << none;
        QTest::newRow("an empty text does nothing") << u""_s << none << none;
    }
    void decidesWhatFollowsFromTyping()
    {
        QFETCH(QString, fieldText);
        const TypingOutcome outcome = outcomeOfTyping(fieldText);
        QTEST(outcome.correctedText.value_or(QString()), "correctedText");
        QTEST(outcome.colorText.value_or(QString()), "colorText");
    }
};

QTEST_GUILESS_MAIN(TypingRuleTest)
#include "TypingRuleTest.moc"
