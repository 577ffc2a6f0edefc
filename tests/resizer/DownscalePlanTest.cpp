// SPDX-License-Identifier: MIT
#include "resizer/DownscalePlan.h"
#include "RetinaFixtures.h"
#include "resizer/RetinaSearch.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class DownscalePlanTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath(u"out"_s));
    }

    void gathers_data()
    {
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QStringList>("named");
        QTest::addColumn<QStringList>("taken");
        QTest::addColumn<QList<FailureCode>>("failures");
        using Codes = QList<FailureCode>;
        QTest::newRow("a marked file") << QStringList{u"a@2x.png"_s} << QStringList{u"a@2x.png"_s}
                                       << QStringList{u"a@2x.png"_s} << Codes{};
        QTest::newRow("an unmarked file")
            << QStringList{u"a.png"_s} << QStringList{u"a.png"_s} << QStringList{} << Codes{FailureCode::NotMarked};
        QTest::newRow("upper-case extension") << QStringList{u"a@2x.PNG"_s} << QStringList{u"a@2x.PNG"_s}
                                              << QStringList{} << Codes{FailureCode::NotMarked};
        QTest::newRow("another format") << QStringList{u"a@2x.jpg"_s} << QStringList{u"a@2x.jpg"_s} << QStringList{}
                                        << Codes{FailureCode::NotMarked};
        QTest::newRow("missing") << QStringList{} << QStringList{u"a@2x.png"_s} << QStringList{}
                                 << Codes{FailureCode::NotFound};
        QTest::newRow("the order given") << QStringList{u"b@2x.png"_s, u"a@2x.png"_s}
                                         << QStringList{u"b@2x.png"_s, u"a@2x.png"_s}
                                         << QStringList{u"b@2x.png"_s, u"a@2x.png"_s} << Codes{};
        QTest::newRow("a folder, searched to the bottom, in order")
            << QStringList{u"art/z@2x.png"_s, u"art/x/y/a-hd.png"_s, u"art/plain.png"_s, u"art/b@2x.gif"_s}
            << QStringList{u"art"_s} << QStringList{u"art/x/y/a-hd.png"_s, u"art/z@2x.png"_s} << Codes{};
        QTest::newRow("a marked folder") << QStringList{u"art-hd/plain.png"_s} << QStringList{u"art-hd"_s}
                                         << QStringList{u"art-hd/plain.png"_s} << Codes{};
        QTest::newRow("a folder without any") << QStringList{u"art/plain.png"_s} << QStringList{u"art"_s}
                                              << QStringList{} << Codes{FailureCode::MissingContent};
        QTest::newRow("hidden files are left out")
            << QStringList{u"art/._a@2x.png"_s, u"art/a@2x.png"_s} << QStringList{u"art"_s}
            << QStringList{u"art/a@2x.png"_s} << Codes{};
        QTest::newRow("a file named twice")
            << QStringList{u"art/a@2x.png"_s} << QStringList{u"art/a@2x.png"_s, u"art/../art/a@2x.png"_s, u"art"_s}
            << QStringList{u"art/a@2x.png"_s} << Codes{};
    }
    void gathers()
    {
        QFETCH(QStringList, present);
        QFETCH(QStringList, named);
        QFETCH(QStringList, taken);
        QFETCH(QList<FailureCode>, failures);
        put(present);
        const DownscalePlan plan = planDownscaling({at(named), at(u"out"_s)});
        QCOMPARE(sourcesOf(plan), at(taken));
        QList<FailureCode> codes;
        for (const Failure &failure : plan.failures)
            codes << failure.code;
        QCOMPARE(codes, failures);
    }

    void neverReplacesASource_data()
    {
        QTest::addColumn<QStringList>("named");
        QTest::addColumn<QString>("destination");
        QTest::addColumn<FailureCode>("reason");
        QTest::newRow("itself") << QStringList{u"art-hd/a.png"_s} << u"art-hd"_s << FailureCode::WouldReplaceSource;
        QTest::newRow("another one of the run")
            << QStringList{u"art-hd/a@2x.png"_s, u"art-hd/a.png"_s} << u"art-hd"_s << FailureCode::WouldReplaceSource;
        QTest::newRow("a refused one of the call")
            << QStringList{u"art/a@2x.png"_s, u"art/a.png"_s} << u"art"_s << FailureCode::WouldReplaceSource;
        QTest::newRow("a file that was not named") << QStringList{u"art/a@2x.png"_s} << u"art"_s << FailureCode::Exists;
        QTest::newRow("itself through a link to its folder")
            << QStringList{u"art-hd/a.png"_s} << u"link"_s << FailureCode::WouldReplaceSource;
    }
    void neverReplacesASource()
    {
        QFETCH(QStringList, named);
        QFETCH(QString, destination);
        QFETCH(FailureCode, reason);
        put({u"art/a@2x.png"_s, u"art/a.png"_s, u"art-hd/a@2x.png"_s, u"art-hd/a.png"_s});
        QVERIFY(QFile::link(at(u"art-hd"_s), at(u"link"_s)));
        const DownscalePlan refusing = planDownscaling({at(named), at(destination)});
        QVERIFY(sourcesOf(refusing).isEmpty());
        QCOMPARE(refusing.failures.back().code, reason);
        const DownscalePlan allowing = planDownscaling({at(named), at(destination), FileReplacement::Allow});
        QStringList marked = at(named);
        marked.removeAll(at(u"art/a.png"_s));
        QCOMPARE(sourcesOf(allowing), marked);
    }

    void linksToFoldersAreNotFollowed()
    {
        put({u"art/a@2x.png"_s});
        QVERIFY(QFile::link(at(u"art"_s), at(u"art/loop"_s)));
        QCOMPARE(findDoubleResolution(at(u"art"_s)).files, QStringList{at(u"art/a@2x.png"_s)});
    }

private:
    static QStringList sourcesOf(const DownscalePlan &plan)
    {
        QStringList sources;
        for (const DownscaleJob &job : plan.jobs)
            sources << job.source;
        return sources;
    }
    QString at(const QString &name) const { return m_folder->filePath(name); }
    QStringList at(const QStringList &names) const
    {
        QStringList paths;
        for (const QString &name : names)
            paths << at(name);
        return paths;
    }
    void put(const QStringList &names) const
    {
        for (const QString &name : names) {
            QVERIFY(QDir().mkpath(QFileInfo(at(name)).path()));
            QFile file(at(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(DownscalePlanTest)
#include "DownscalePlanTest.moc"
