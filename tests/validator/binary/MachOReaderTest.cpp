// SPDX-License-Identifier: MIT
#include "validator/binary/macho/MachOReader.h"
#include "tests/doubles/ScriptedFiles.h"
#include "tests/doubles/SmallWork.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class MachOReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(runScript(u"make_binaries.py"_s, {m_files.path()})); }

    void readsAnApp()
    {
        const auto facts = readMachO(contents("app"));
        QVERIFY(facts);
        QVERIFY(!facts->isFat);
        QCOMPARE(facts->slices.size(), 1);
        const BinarySlice &app = facts->slices.first();
        QCOMPARE(app.architecture, u"arm64"_s);
        QVERIFY(app.is64Bit && app.hasEntryPoint && app.hasSymbolTable);
        QCOMPARE(app.fileType, BinaryFileType::Execute);
        QCOMPARE(app.flags, 0x200085U);
        QCOMPARE(app.targets.size(), 1);
        const BinaryTarget &target = app.targets.first();
        QCOMPARE(platformName(target.platform), u"ios"_s);
        QCOMPARE(target.minimumOS.text(), u"15.0"_s);
        QCOMPARE(target.sdk.text(), u"26.0"_s);
        QCOMPARE(target.tools,
                 (QList<BuildTool>{{1, {17 << 16}}, {2, {6 << 16 | 2 << 8}}, {3, {1230 << 16 | 1 << 8}}}));
        QCOMPARE(app.uuid, QUuid(u"00112233-4455-6677-8899-aabbccddeeff"_s));
        QCOMPARE(app.libraries.size(), 4);
        QCOMPARE(app.libraries[1].path, u"/System/Library/Frameworks/UIKit.framework/UIKit"_s);
        QCOMPARE(app.libraries[1].link, LibraryLink::Needed);
        QCOMPARE(app.libraries[1].currentVersion.text(), u"1.2.3"_s);
        QCOMPARE(app.libraries[2].link, LibraryLink::Weak);
        QCOMPARE(app.runPaths, QStringList{u"@executable_path/Frameworks"_s});
        QCOMPARE(app.importedSymbols, (QByteArrayList{"_OBJC_CLASS_$_NSUserDefaults", "_objc_release", "_stat"}));
        QCOMPARE(app.definedSymbols, QByteArrayList{"__mh_execute_header"});
        QCOMPARE(app.objectiveCClasses, (QByteArrayList{"Lamp", "Switch"}));
        QCOMPARE(app.objectiveCSelectors, (QByteArrayList{"lightAt:", "systemUptime"}));
        QVERIFY(app.imports("_stat") && !app.imports("_lstat"));
        QVERIFY(app.importsClass("NSUserDefaults") && !app.importsClass("UIWebView"));
        QVERIFY(app.namesSelector("systemUptime") && !app.namesSelector("uptime"));
        QVERIFY(app.usesSwift() && app.usesAutomaticReferenceCounting() && !app.isEncrypted());
        QVERIFY(app.segment("__TEXT") != nullptr && app.segment("__LLVM") == nullptr);
        QVERIFY(app.section("__swift5_entry") != nullptr && app.section("__bundle") == nullptr);
        QVERIFY(app.encryption);
        QCOMPARE(app.encryption->offset, 0x4000U);
        QVERIFY(!app.codeSignature);
        QCOMPARE(app.faults, QList<BinaryFault>());
    }

    void readsEveryForm_data()
    {
        QTest::addColumn<QStringList>("architectures");
        QTest::addColumn<BinaryFileType>("type");
        QTest::addColumn<QByteArrayList>("imports");
        const QByteArrayList none;
        const QByteArrayList two{"_OBJC_CLASS_$_NSUserDefaults", "_stat"};
        QTest::newRow("fat") << QStringList{u"armv7"_s, u"arm64"_s} << BinaryFileType::Execute << none;
        QTest::newRow("fat of 64 bits") << QStringList{u"arm64"_s, u"arm64e"_s} << BinaryFileType::Execute
                                        << QByteArrayList{"_OBJC_CLASS_$_NSUserDefaults", "_objc_release", "_stat"};
        QTest::newRow("library") << QStringList{u"arm64"_s} << BinaryFileType::Dylib << none;
        QTest::newRow("plug-in") << QStringList{u"arm64"_s} << BinaryFileType::Bundle << none;
        QTest::newRow("debug symbols") << QStringList{u"arm64"_s} << BinaryFileType::DebugSymbols << none;
        QTest::newRow("bindings") << QStringList{u"arm64"_s} << BinaryFileType::Execute << two;
        QTest::newRow("chained imports") << QStringList{u"arm64"_s} << BinaryFileType::Execute << two;
        QTest::newRow("chained imports with addends")
            << QStringList{u"arm64"_s} << BinaryFileType::Execute << QByteArrayList{"_fstat", "_stat"};
        QTest::newRow("chained imports with long addends")
            << QStringList{u"arm64"_s} << BinaryFileType::Execute << QByteArrayList{"_fstat", "_stat"};
        QTest::newRow("big-endian") << QStringList{u"ppc"_s} << BinaryFileType::Execute << none;
    }
    void readsEveryForm()
    {
        QFETCH(QStringList, architectures);
        QFETCH(BinaryFileType, type);
        QFETCH(QByteArrayList, imports);
        const QByteArray bytes = contents(QTest::currentDataTag());
        QVERIFY(isMachO(bytes));
        const auto facts = readMachO(bytes);
        QVERIFY(facts);
        QCOMPARE(facts->isFat, architectures.size() > 1);
        QCOMPARE(facts->faults, QList<BinaryFault>());
        QStringList found;
        for (const BinarySlice &slice : facts->slices) {
            found += slice.architecture;
            QCOMPARE(slice.fileType, type);
            QCOMPARE(slice.faults, QList<BinaryFault>());
        }
        QCOMPARE(found, architectures);
        QCOMPARE(facts->slices.first().importedSymbols, imports);
    }

    void readsTheVersionCommandOfOld()
    {
        const auto facts = readMachO(contents("app of old"));
        QVERIFY(facts);
        const BinaryTarget target = facts->slices.first().targets.value(0);
        QCOMPARE(target.platform, BinaryPlatform::Ios);
        QCOMPARE(target.minimumOS.text(), u"7.0"_s);
        QCOMPARE(target.sdk.text(), u"8.4"_s);
    }

    void readsNoEncipheredNames()
    {
        const auto facts = readMachO(contents("enciphered"));
        QVERIFY(facts);
        QVERIFY(facts->slices.first().isEncrypted());
        QCOMPARE(facts->slices.first().objectiveCSelectors, QByteArrayList());
        QVERIFY(facts->slices.first().imports("_stat"));
    }

    void isNoBinary_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *file : {"java class", "nothing", "text"})
            QTest::newRow(file) << QString::fromUtf8(file);
    }
    void isNoBinary()
    {
        const QByteArray bytes = contents(QTest::currentDataTag());
        QVERIFY(!isMachO(bytes));
        QVERIFY(!readMachO(bytes));
    }

    void findsTheFault_data()
    {
        QTest::addColumn<BinaryFault>("fault");
        QTest::addColumn<int>("slices");
        QTest::newRow("command of size zero") << BinaryFault::LoadCommandSize << 1;
        QTest::newRow("command shorter than its head") << BinaryFault::LoadCommandSize << 1;
        QTest::newRow("command longer than the room") << BinaryFault::LoadCommandSize << 1;
        QTest::newRow("commands without end") << BinaryFault::LoadCommandsPastEnd << 1;
        QTest::newRow("commands past the end") << BinaryFault::LoadCommandsPastEnd << 1;
        QTest::newRow("sections without end") << BinaryFault::DamagedLoadCommand << 1;
        QTest::newRow("tools without end") << BinaryFault::DamagedLoadCommand << 1;
        QTest::newRow("symbols without end") << BinaryFault::SymbolsPastEnd << 1;
        QTest::newRow("names past the end") << BinaryFault::SymbolsPastEnd << 1;
        QTest::newRow("library named past its command") << BinaryFault::DamagedLoadCommand << 1;
        QTest::newRow("segment past the end") << BinaryFault::SegmentPastEnd << 1;
        QTest::newRow("signature past the end") << BinaryFault::CodeSignaturePastEnd << 1;
        QTest::newRow("header only") << BinaryFault::CutOff << 1;
        QTest::newRow("cut off") << BinaryFault::LoadCommandsPastEnd << 1;
        QTest::newRow("slices without end") << BinaryFault::UnreadableSlice << 2;
        QTest::newRow("more slices than any file") << BinaryFault::TooManySlices << 32;
        QTest::newRow("slices that overlap") << BinaryFault::OverlappingSlices << 1;
        QTest::newRow("slice past the end") << BinaryFault::SlicePastEnd << 1;
        QTest::newRow("slice that is the file itself") << BinaryFault::OverlappingSlices << 1;
        QTest::newRow("slice that is no binary") << BinaryFault::UnreadableSlice << 0;
        QTest::newRow("chained imports without end") << BinaryFault::DamagedBindings << 1;
        QTest::newRow("chained imports past the end") << BinaryFault::DamagedBindings << 1;
        QTest::newRow("bindings cut off") << BinaryFault::DamagedBindings << 1;
        QTest::newRow("bindings with an endless number") << BinaryFault::DamagedBindings << 1;
        QTest::newRow("one long name a hundred thousand times") << BinaryFault::TooManySymbols << 1;
    }
    void findsTheFault()
    {
        QFETCH(BinaryFault, fault);
        QFETCH(int, slices);
        const QByteArray bytes = contents(QTest::currentDataTag());
        const SmallWork work;
        const auto facts = readMachO(bytes);
        QVERIFY(facts);
        QCOMPARE(facts->slices.size(), slices);
        QList<BinaryFault> faults = facts->faults;
        for (const BinarySlice &slice : facts->slices)
            faults += slice.faults;
        QVERIFY2(faults.contains(fault), qPrintable(u"%1 others"_s.arg(faults.size())));
        QVERIFY(work.isSmall());
    }

    void knowsAStaticLibrary()
    {
        QVERIFY(isStaticArchive("!<arch>\n#1/20"));
        QVERIFY(!isStaticArchive(contents("app")));
    }

private:
    QByteArray contents(const char *name) const
    {
        QFile file(m_files.filePath(QString::fromUtf8(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    QTemporaryDir m_files;
};

QTEST_GUILESS_MAIN(MachOReaderTest)
#include "MachOReaderTest.moc"
