// SPDX-License-Identifier: MIT
#include "icons/project/XcodeProject.h"
#include "IntoProject.h"

#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// A project whose target and whole have these lines in their configurations, named Debug and Release.
QByteArray configured(const QByteArray &debug, const QByteArray &release, const QByteArray &shared = {})
{
    return "{ objects = {\n"
           "P0 = {isa = PBXProject; mainGroup = G0; buildConfigurationList = LP; };\n"
           "G0 = {isa = PBXGroup; children = (G1, F2, ); sourceTree = \"<group>\"; };\n"
           "G1 = {isa = PBXGroup; children = (F1, ); path = Config; sourceTree = \"<group>\"; };\n"
           "F1 = {isa = PBXFileReference; path = App.xcconfig; sourceTree = \"<group>\"; };\n"
           "F2 = {isa = PBXFileReference; name = Root; path = Config/App.xcconfig; sourceTree = SOURCE_ROOT; };\n"
           "S1 = {isa = PBXFileSystemSynchronizedRootGroup; path = Config; sourceTree = \"<group>\"; };\n"
           "T0 = {isa = PBXNativeTarget; name = App; buildConfigurationList = LT; };\n"
           "LT = {isa = XCConfigurationList; buildConfigurations = (T1, T2, ); };\n"
           "T1 = {isa = XCBuildConfiguration; name = Debug; " +
           debug + " };\nT2 = {isa = XCBuildConfiguration; name = Release; " + release +
           " };\n"
           "LP = {isa = XCConfigurationList; buildConfigurations = (P1, P2, ); };\n"
           "P1 = {isa = XCBuildConfiguration; name = Debug; " +
           shared + " };\nP2 = {isa = XCBuildConfiguration; name = Release; " + shared + " };\n}; }\n";
}

QByteArray iconNamed(const QByteArray &name)
{
    return "buildSettings = {ASSETCATALOG_COMPILER_APPICON_NAME = \"" + name + "\"; };";
}

const QByteArray byFile = "baseConfigurationReference = F1;";
const QString catalogue = u"Mine/Assets.xcassets/"_s;

} // namespace

class XcodeProjectTest : public QObject
{
    Q_OBJECT

private slots:
    void configurationFiles_data();
    void configurationFiles();
    void endlessSettings_data();
    void endlessSettings();
    void targets();
    void choices_data();
    void choices();
};

void XcodeProjectTest::configurationFiles_data()
{
    QTest::addColumn<QByteArray>("project");
    QTest::addColumn<Tree>("files");
    QTest::addColumn<QStringList>("names"); ///< of the icon sets of the only target
    const QString app = u"Config/App.xcconfig"_s;
    const QByteArray line = "ASSETCATALOG_COMPILER_APPICON_NAME = Logo\n";
    QTest::newRow("of the target") << configured(byFile, byFile) << Tree{{app, line}} << QStringList{u"Logo"_s};
    QTest::newRow("of the whole project") << configured({}, {}, byFile) << Tree{{app, line}} << QStringList{u"Logo"_s};
    QTest::newRow("from the project's folder")
        << configured("baseConfigurationReference = F2;", {}) << Tree{{app, line}} << QStringList{u"Logo"_s};
    QTest::newRow("in a folder that is kept in step")
        << configured("baseConfigurationReferenceAnchor = S1; baseConfigurationReferenceRelativePath = App.xcconfig;",
                      {})
        << Tree{{app, line}} << QStringList{u"Logo"_s};
    QTest::newRow("comments and blanks")
        << configured(byFile, {})
        << Tree{{app,
                 "// ASSETCATALOG_COMPILER_APPICON_NAME = Old\n\tASSETCATALOG_COMPILER_APPICON_NAME=Logo // now\r\n"}}
        << QStringList{u"Logo"_s};
    QTest::newRow("included") << configured(byFile, {})
                              << Tree{{app, "#include \"../Shared/All.xcconfig\"\n"},
                                      {u"Shared/All.xcconfig"_s, "#include? \"None.xcconfig\"\n" + line}}
                              << QStringList{u"Logo"_s};
    QTest::newRow("later than what is included")
        << configured(byFile, {})
        << Tree{{app, "#include \"All.xcconfig\"\n" + line},
                {u"Config/All.xcconfig"_s, "ASSETCATALOG_COMPILER_APPICON_NAME = Old\n"}}
        << QStringList{u"Logo"_s};
    QTest::newRow("the project file counts first") << configured(byFile + iconNamed("Own"), byFile + iconNamed("Own"))
                                                   << Tree{{app, line}} << QStringList{u"Own"_s};
    QTest::newRow("one for each configuration")
        << configured(iconNamed("LogoDev"), byFile) << Tree{{app, line}} << QStringList{u"LogoDev"_s, u"Logo"_s};
    QTest::newRow("settings in the name")
        << configured(byFile + iconNamed("Logo$(STAGE)-${CONFIGURATION}"), {})
        << Tree{{app, "STAGE = Beta$(SUFFIX)\nSUFFIX = 2\n"}} << QStringList{u"LogoBeta2-Debug"_s};
    QTest::newRow("what was there before")
        << configured(byFile + iconNamed("$(inherited)Dev"), {}) << Tree{{app, line}} << QStringList{u"LogoDev"_s};
    QTest::newRow("an unknown setting") << configured(iconNamed("Logo$(STAGE)"), {}) << Tree{} << QStringList();
    QTest::newRow("a missing file") << configured(byFile, {}) << Tree{} << QStringList();
    QTest::newRow("another setting") << configured(byFile, {})
                                     << Tree{{app, "ASSETCATALOG_COMPILER_APPICON_NAME_OLD = Logo\n"}} << QStringList();
}

void XcodeProjectTest::configurationFiles()
{
    QFETCH(QByteArray, project);
    QFETCH(Tree, files);
    QFETCH(QStringList, names);
    const QTemporaryDir folder;
    files[u"Mine.xcodeproj/project.pbxproj"_s] = project;
    QVERIFY(put(folder.path(), files));
    const std::optional<XcodeProject> read = readXcodeProject(folder.filePath(u"Mine.xcodeproj"_s));
    QVERIFY(read.has_value());
    QCOMPARE(read->targets, QStringList{u"App"_s});
    const auto found = read->iconNames.find(u"App"_s);
    QCOMPARE(found == read->iconNames.end() ? QStringList() : found->second, names);
}

void XcodeProjectTest::endlessSettings_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("a file that includes itself") << QByteArray("#include \"App.xcconfig\"\n");
    QTest::newRow("settings that name each other")
        << QByteArray("ASSETCATALOG_COMPILER_APPICON_NAME = $(A)\nA = $(B)\nB = $(A)\n");
    QTest::newRow("a setting that names itself") << QByteArray("ASSETCATALOG_COMPILER_APPICON_NAME = "
                                                               "$(ASSETCATALOG_COMPILER_APPICON_NAME)\n");
    QByteArray growing = "ASSETCATALOG_COMPILER_APPICON_NAME = $(A0)\n";
    for (int level = 0; level < 30; ++level)
        growing += "A" + QByteArray::number(level) + " = " +
                   QByteArray("$(A" + QByteArray::number(level + 1) + ')').repeated(50) + '\n';
    QTest::newRow("settings that grow") << growing + "A30 =\n";
}

void XcodeProjectTest::endlessSettings()
{
    QFETCH(QByteArray, file);
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(),
                {{u"Mine.xcodeproj/project.pbxproj"_s, configured(byFile, {})}, {u"Config/App.xcconfig"_s, file}}));
    const std::optional<XcodeProject> read = readXcodeProject(folder.filePath(u"Mine.xcodeproj"_s));
    QVERIFY(read && read->iconNames.empty());
}

void XcodeProjectTest::targets()
{
    Tree tree = xcode;
    tree[u"Mine.xcodeproj/project.pbxproj"_s] = xcodeProject({{"App", "Icon"}, {"Beta", "Other"}});
    const QTemporaryDir folder;
    QVERIFY(put(folder.path(), tree));
    const Put without = putInto(folder.path());
    QVERIFY(without.failure && without.failure->code == FailureCode::AmbiguousProject);
    QVERIFY(without.failure->detail.words().contains(u"Beta (Other)"));
    const Put unknown = putInto(folder.path(), {{}, u"Gamma"_s});
    QVERIFY(unknown.failure && unknown.failure->code == FailureCode::AmbiguousProject);
    const QTemporaryDir other;
    QVERIFY(put(other.path(), electron));
    const Put untargeted = putInto(other.path(), {{}, u"Beta"_s});
    QVERIFY(untargeted.failure && untargeted.failure->code == FailureCode::AmbiguousProject);
    const Put beta = putInto(folder.path(), {{}, u"Beta"_s});
    QVERIFY(!beta.failure);
    QCOMPARE(beta.paths().filter(u"Icon.appiconset"_s), QStringList());
    QVERIFY(beta.paths().contains(u"Mine/Assets.xcassets/Other.appiconset/AppIcon.png"_s));
}

void XcodeProjectTest::choices_data()
{
    QTest::addColumn<QByteArray>("project");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("written"); ///< the set; empty if the project is refused
    QTest::addColumn<QString>("said");    ///< in the refusal
    const QByteArray twoTargets = xcodeProject({{"App", "Icon"}, {"Beta", "Other"}});
    const QByteArray stages = configured(iconNamed("Icon"), iconNamed("Other"));
    const QByteArray unnamed = configured({}, {});
    QTest::newRow("two targets") << twoTargets << QString() << QString() << u"App (Icon), Beta (Other)"_s;
    QTest::newRow("two targets, one chosen") << twoTargets << u"Beta"_s << u"Other"_s << QString();
    QTest::newRow("two targets, a set chosen") << twoTargets << u"Other"_s << u"Other"_s << QString();
    QTest::newRow("two targets, unknown") << twoTargets << u"Gamma"_s << QString() << u"App (Icon), Beta (Other)"_s;
    QTest::newRow("two configurations") << stages << QString() << QString() << u"App (Icon, Other)"_s;
    QTest::newRow("two configurations, the target chosen") << stages << u"App"_s << QString() << u"App (Icon, Other)"_s;
    QTest::newRow("two configurations, a set chosen") << stages << u"Other"_s << u"Other"_s << QString();
    QTest::newRow("a set as the target") << configured(iconNamed("App"), iconNamed("Other")) << u"App"_s << u"App"_s
                                         << QString();
    QTest::newRow("no name") << unnamed << QString() << QString() << u"Icon, Other, Third"_s;
    QTest::newRow("no name, a set chosen") << unnamed << u"Third"_s << u"Third"_s << QString();
    QTest::newRow("no name, the target chosen") << unnamed << u"App"_s << QString() << u"Icon, Other, Third"_s;
    QTest::newRow("no name, unknown") << unnamed << u"Gamma"_s << QString() << u"Gamma"_s;
    QTest::newRow("a set that no target names") << twoTargets << u"Third"_s << u"Third"_s << QString();
}

void XcodeProjectTest::choices()
{
    QFETCH(QByteArray, project);
    QFETCH(QString, target);
    QFETCH(QString, written);
    QFETCH(QString, said);
    const QTemporaryDir folder;
    Tree tree{{u"Mine.xcodeproj/project.pbxproj"_s, project}, {catalogue + u"Contents.json"_s, "{}"}};
    for (const char *set : {"Icon", "Other", "Third"})
        tree[catalogue + QLatin1StringView(set) + u".appiconset/Contents.json"_s] = universalList;
    QVERIFY(put(folder.path(), tree));
    const Put result = putInto(folder.path(), {{}, target});
    if (written.isEmpty()) {
        QVERIFY(result.failure.has_value());
        QCOMPARE(result.failure->code, FailureCode::AmbiguousProject);
        QVERIFY2(result.failure->detail.words().contains(said), qPrintable(result.failure->detail.words()));
        return;
    }
    QVERIFY2(!result.failure, result.failure ? qPrintable(result.failure->detail.words()) : "");
    QVERIFY(!result.paths().isEmpty());

    for (const QString &path : result.paths())
        QVERIFY2(path.startsWith(catalogue + written + u".appiconset/"_s), qPrintable(path));
}

QTEST_APPLESS_MAIN(XcodeProjectTest)
#include "XcodeProjectTest.moc"
