// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"

#include <QJsonArray>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class DevicesCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void listsTheMatchingModels_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("out");

        QTest::newRow("all of them") << QStringList()
                                     << QByteArray("iPhone: 3G, 3GS, 4, 4S, 5, 5C, 5S\n"
                                                   "iPod: 1G, 2G, 3G, 4G, 5G\n"
                                                   "iPad: 1st Gen (mini), 1st Gen, 2th Gen, 3rd Gen, 4th Gen\n");
        QTest::newRow("iOS 7") << QStringList{u"--ios"_s, u"7"_s}
                               << QByteArray("iPhone: 4, 4S, 5, 5C, 5S\n"
                                             "iPod: 5G\n"
                                             "iPad: 1st Gen (mini), 2th Gen, 3rd Gen, 4th Gen\n");
        QTest::newRow("iOS 4") << QStringList{u"--ios"_s, u"4"_s}
                               << QByteArray("iPhone: 3G, 3GS, 4, 4S, 5, 5C, 5S\n"
                                             "iPod: 2G, 3G, 4G, 5G\n"
                                             "iPad: 1st Gen (mini), 1st Gen, 2th Gen, 3rd Gen, 4th Gen\n");
        QTest::newRow("one feature, whole groups left out") << QStringList{u"--feature"_s, u"flash_cam"_s}
                                                            << QByteArray("iPhone: 4, 4S, 5, 5C, 5S\n"
                                                                          "iPod: none\n"
                                                                          "iPad: none\n");
        QTest::newRow("version and two features")
            << QStringList{u"--ios=6"_s, u"--feature"_s, u"siri"_s, u"--feature=retina"_s}
            << QByteArray("iPhone: 4S, 5, 5C, 5S\n"
                          "iPod: 5G\n"
                          "iPad: 3rd Gen, 4th Gen\n");
        QTest::newRow("a feature given twice")
            << QStringList{u"--feature"_s, u"opengl_3"_s, u"--feature"_s, u"opengl_3"_s}
            << QByteArray("iPhone: 5S\niPod: none\niPad: none\n");
    }
    void listsTheMatchingModels()
    {
        QFETCH(QStringList, arguments);
        const LumoraRun run = runLumora(QStringList{u"devices"_s} + arguments);
        QCOMPARE(run.status, 0);
        QTEST(run.out, "out");
        QCOMPARE(run.err, QByteArray());
    }

    void printsRecordsAsJson()
    {
        const LumoraRun run = runLumora({u"devices"_s, u"--json"_s, u"--feature"_s, u"gps"_s, u"--ios"_s, u"4"_s});
        QCOMPARE(run.status, 0);
        const QJsonObject json = run.json();
        QCOMPARE(json.keys(), (QStringList{u"errors"_s, u"ipads"_s, u"iphones"_s, u"ipods"_s, u"ok"_s, u"schema"_s}));
        QCOMPARE(json[u"schema"_s].toInt(), 1);
        QCOMPARE(json[u"iphones"_s].toArray().size(), 7);
        QVERIFY(json[u"ipods"_s].isArray());
        QCOMPARE(json[u"ipods"_s].toArray().size(), 0);
        QCOMPARE(json[u"ipads"_s].toArray().size(), 5);
        const QJsonObject expected{{u"model"_s, u"3G"_s},      {u"image"_s, u"device_iphone_old"_s},
                                   {u"max_ios"_s, 4.2},        {u"active"_s, true},
                                   {u"multitask"_s, false},    {u"retina"_s, false},
                                   {u"siri"_s, false},         {u"gps"_s, true},
                                   {u"compass"_s, false},      {u"gyroscope"_s, false},
                                   {u"back_cam"_s, true},      {u"front_cam"_s, false},
                                   {u"flash_cam"_s, false},    {u"video_rec"_s, false},
                                   {u"bluetooth_le"_s, false}, {u"opengl_2"_s, false},
                                   {u"opengl_3"_s, false}};
        QCOMPARE(json[u"iphones"_s].toArray().first().toObject(), expected);
    }

    void refusesAWrongCall_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("an unknown feature") << QStringList{u"--feature"_s, u"teleport"_s};
        QTest::newRow("a known and an unknown feature")
            << QStringList{u"--feature"_s, u"gps"_s, u"--feature"_s, u"GPS"_s};
        QTest::newRow("the version is no feature") << QStringList{u"--feature"_s, u"max_ios"_s};
        QTest::newRow("an unknown version") << QStringList{u"--ios"_s, u"8"_s};
        QTest::newRow("a version that is no number") << QStringList{u"--ios"_s, u"seven"_s};
        QTest::newRow("an empty version") << QStringList{u"--ios"_s, u""_s};
        QTest::newRow("a version with a point") << QStringList{u"--ios"_s, u"7.0"_s};
        QTest::newRow("a value where none belongs") << QStringList{u"7"_s};
    }
    void refusesAWrongCall()
    {
        QFETCH(QStringList, arguments);
        const LumoraRun run = runLumora(QStringList{u"devices"_s} + arguments);
        QCOMPARE(run.status, 2);
        QCOMPARE(run.out, QByteArray());
        QVERIFY(!run.err.isEmpty());
    }

    void anUnknownFeatureIsAnsweredWithEveryKey()
    {
        const LumoraRun run = runLumora({u"devices"_s, u"--feature"_s, u"teleport"_s});
        for (const char *key : {"retina", "multitask", "siri", "video_rec", "compass", "gyroscope", "gps", "back_cam",
                                "front_cam", "flash_cam", "bluetooth_le", "opengl_2", "opengl_3"})
            QVERIFY2(run.err.contains(key), key);
    }
};

QTEST_GUILESS_MAIN(DevicesCommandTest)
#include "DevicesCommandTest.moc"
