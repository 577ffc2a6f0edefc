// SPDX-License-Identifier: MIT
#include "foundation/LeadingInteger.h"

#include <QTest>

#include <limits>

using namespace lumora;
using namespace Qt::StringLiterals;

class LeadingIntegerTest : public QObject
{
    Q_OBJECT

private slots:
    void readsTheLeadingNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("number");

        QTest::newRow("plain") << u"64"_s << 64;
        QTest::newRow("digits before letters") << u"64px"_s << 64;
        QTest::newRow("digits on both sides of a letter") << u"300abc200"_s << 300;
        QTest::newRow("leading blanks") << u" \t 12"_s << 12;
        QTest::newRow("plus sign") << u"+7"_s << 7;
        QTest::newRow("minus sign") << u"-5"_s << -5;
        QTest::newRow("two signs") << u"--5"_s << 0;
        QTest::newRow("blank after the sign") << u"- 5"_s << 0;
        QTest::newRow("letters only") << u"abc"_s << 0;
        QTest::newRow("letters before digits") << u"a64"_s << 0;
        QTest::newRow("empty") << u""_s << 0;
        QTest::newRow("leading zeros") << u"0064"_s << 64;
        QTest::newRow("fraction is cut") << u"12.9"_s << 12;
        QTest::newRow("digits of another script are no digits") << QString::fromUtf8("٣") << 0;
        QTest::newRow("largest") << u"2147483647"_s << std::numeric_limits<int>::max();
        QTest::newRow("beyond the largest") << u"2147483648"_s << std::numeric_limits<int>::max();
        QTest::newRow("smallest") << u"-2147483648"_s << std::numeric_limits<int>::min();
        QTest::newRow("far beyond the smallest") << u"-99999999999999999999999"_s << std::numeric_limits<int>::min();
    }
    void readsTheLeadingNumber()
    {
        QFETCH(QString, text);
        QTEST(leadingInteger(text), "number");
    }
};

QTEST_GUILESS_MAIN(LeadingIntegerTest)
#include "LeadingIntegerTest.moc"
