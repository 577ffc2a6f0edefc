// SPDX-License-Identifier: MIT
#include "icons/project/OpenStepList.h"

#include <QTest>

using namespace lumora;

class OpenStepListTest : public QObject
{
    Q_OBJECT

private slots:
    void isReadOnlyIfSound_data();
    void isReadOnlyIfSound();
};

void OpenStepListTest::isReadOnlyIfSound_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("sound");
    QTest::newRow("dictionary") << QByteArray("{a = b; \"c d\" = (1, 2,); /* x */ e = {};}") << true;
    QTest::newRow("array without a last comma") << QByteArray("(a, b)") << true;
    QTest::newRow("comment to the end") << QByteArray("{} // end") << true;
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("open") << QByteArray("{a = b;") << false;
    QTest::newRow("no semicolon") << QByteArray("{a = b}") << false;
    QTest::newRow("open string") << QByteArray("{a = \"b;}") << false;
    QTest::newRow("string that ends in a backslash") << QByteArray("{a = \"b\\") << false;
    QTest::newRow("open comment") << QByteArray("{ /* a") << false;
    QTest::newRow("more behind it") << QByteArray("{} {}") << false;
    QTest::newRow("deep") << QByteArray(100'000, '(') << false;
}

void OpenStepListTest::isReadOnlyIfSound()
{
    QFETCH(QByteArray, text);
    QTEST(readOpenStepList(text).has_value(), "sound");
}

QTEST_APPLESS_MAIN(OpenStepListTest)

#include "OpenStepListTest.moc"
