// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"

#include <QJsonArray>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class ColorCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void prints_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("out");

        const QByteArray all = "hex: #34485e\n"
                               "ios: [UIColor colorWithRed:0.204f green:0.282f blue:0.369f alpha:1.000f]\n"
                               "mac: [NSColor colorWithCalibratedRed:0.204f green:0.282f blue:0.369f alpha:1.000f]\n"
                               "rgb: rgb(52, 72, 94)\n"
                               "css: color: #34485e;\n";
        QTest::newRow("every notation with its name") << QStringList{u"#34485e"_s} << all;
        QTest::newRow("all is what is printed anyway") << QStringList{u"34485e"_s, u"--as"_s, u"all"_s} << all;
        QTest::newRow("hex bare, spelt out") << QStringList{u"#aBc"_s, u"--as"_s, u"hex"_s} << QByteArray("#aabbcc\n");
        QTest::newRow("ios bare") << QStringList{u"#abc"_s, u"--as"_s, u"ios"_s}
                                  << QByteArray(
                                         "[UIColor colorWithRed:0.667f green:0.733f blue:0.800f alpha:1.000f]\n");
        QTest::newRow("mac bare")
            << QStringList{u"#000000"_s, u"--as=mac"_s}
            << QByteArray("[NSColor colorWithCalibratedRed:0.000f green:0.000f blue:0.000f alpha:1.000f]\n");
        QTest::newRow("rgb bare") << QStringList{u"80FF00"_s, u"--as"_s, u"rgb"_s} << QByteArray("rgb(128, 255, 0)\n");
        QTest::newRow("css bare, as typed")
            << QStringList{u"#80FF00"_s, u"--as"_s, u"css"_s} << QByteArray("color: #80FF00;\n");
    }
    void prints()
    {
        QFETCH(QStringList, arguments);
        const LumoraRun run = runLumora(QStringList{u"color"_s} + arguments);
        QCOMPARE(run.status, 0);
        QTEST(run.out, "out");
        QCOMPARE(run.err, QByteArray());
    }

    void printsJson_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("alone") << QStringList{u"--json"_s};
        QTest::newRow("whatever notation is asked for") << QStringList{u"--as"_s, u"rgb"_s, u"--json"_s};
    }
    void printsJson()
    {
        QFETCH(QStringList, arguments);
        const LumoraRun run = runLumora(QStringList{u"color"_s, u"#abc"_s} + arguments);
        QCOMPARE(run.status, 0);
        const QJsonObject expected{
            {u"schema"_s, 1},
            {u"ok"_s, true},
            {u"errors"_s, QJsonArray()},
            {u"hex"_s, u"#aabbcc"_s},
            {u"ios"_s, u"[UIColor colorWithRed:0.667f green:0.733f blue:0.800f alpha:1.000f]"_s},
            {u"mac"_s, u"[NSColor colorWithCalibratedRed:0.667f green:0.733f blue:0.800f alpha:1.000f]"_s},
            {u"rgb"_s, u"rgb(170, 187, 204)"_s},
            {u"css"_s, u"color: #abc;"_s}};
        QCOMPARE(run.json(), expected);
    }

    void refusesWhatIsNoColor_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("too short") << u"ab"_s;
        QTest::newRow("five digits") << u"12345"_s;
        QTest::newRow("eight digits") << u"#aabbccdd"_s;
        QTest::newRow("no digits") << u"zzzzzz"_s;
        QTest::newRow("a name") << u"red"_s;
        QTest::newRow("letters among the digits") << u"1z2z3z"_s;
        QTest::newRow("not ASCII") << QString::fromUtf8("٣٣٣");
    }
    void refusesWhatIsNoColor()
    {
        QFETCH(QString, text);
        for (const QStringList &options : {QStringList(), QStringList{u"--json"_s}}) {
            const LumoraRun run = runLumora(QStringList{u"color"_s, text} + options);
            QCOMPARE(run.status, 1);
            QCOMPARE(run.out.isEmpty(), options.isEmpty());
            QCOMPARE(run.complaints().size(), 1);
            QVERIFY(run.complaints().constFirst().contains(text));
            QVERIFY(run.complaints().constFirst().contains(u"three or six hexadecimal digits"_s));
        }
    }

    void aComplaintCannotSteerTheTerminal()
    {
        const LumoraRun run = runLumora({u"color"_s, u"\x1b[31mred\x07"_s});
        QCOMPARE(run.status, 1);
        QVERIFY(run.err.contains("<U+001B>[31mred<U+0007>"));
        QVERIFY(!run.err.contains('\x1b') && !run.err.contains('\x07'));
    }

    void refusesAWrongCall_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("without a text") << QStringList();
        QTest::newRow("an unknown notation") << QStringList{u"#abc"_s, u"--as"_s, u"java"_s};
        QTest::newRow("a notation left out") << QStringList{u"#abc"_s, u"--as"_s};
        QTest::newRow("an empty text") << QStringList{u""_s};
        QTest::newRow("two texts") << QStringList{u"#abc"_s, u"#def"_s};
        QTest::newRow("an unknown option") << QStringList{u"#abc"_s, u"--loud"_s};
    }
    void refusesAWrongCall()
    {
        QFETCH(QStringList, arguments);
        const LumoraRun run = runLumora(QStringList{u"color"_s} + arguments);
        QCOMPARE(run.status, 2);
        QCOMPARE(run.out, QByteArray());
        QVERIFY(!run.err.isEmpty());
    }
};

QTEST_GUILESS_MAIN(ColorCommandTest)
#include "ColorCommandTest.moc"
