// SPDX-License-Identifier: MIT
#include "LumoraProcess.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QString contentOf(const QString &path)
{
    QFile file(QStringLiteral(LUMORA_SOURCE_DIR "/packaging/") + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The commands that --help lists.
QStringList commands()
{
    const QString help = QString::fromUtf8(runLumora({u"--help"_s}).out);
    QStringList names;
    static const QRegularExpression line(u"^  ([a-z]+) {2,}"_s, QRegularExpression::MultilineOption);
    for (const QRegularExpressionMatch &match :
         line.globalMatch(help.section(u"\nCommands:"_s, 1).section(u"Window:"_s, 0, 0)))
        names << match.captured(1);
    // This command has no arguments.
    names.removeOne(u"version"_s);
    return names;
}

QStringList optionsOf(const QString &command)
{
    const QString help = QString::fromUtf8(runLumora({command, u"--help"_s}).out);
    QStringList names;
    static const QRegularExpression option(u"^ +(?:-[a-zA-Z], )?(--[a-z][a-z0-9-]*)"_s,
                                           QRegularExpression::MultilineOption);
    for (const QRegularExpressionMatch &match : option.globalMatch(help))
        names << match.captured(1);
    return names;
}

} // namespace

/// The shells offer, and the manual describes, exactly what the program accepts.
class ShellHelpTest : public QObject
{
    Q_OBJECT

private slots:
    void namesEveryOption_data();
    void namesEveryOption();
    void namesEveryToolOfTheWindow();
    void bashOffers_data();
    void bashOffers();
    void fishOffers_data();
    void fishOffers();
    void zshOffers_data();
    void zshOffers();
};

void ShellHelpTest::namesEveryOption_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("command");
    QVERIFY(commands().contains(u"icons"_s));
    for (const QString &file :
         {u"shell/lumora.bash"_s, u"shell/_lumora"_s, u"shell/lumora.fish"_s, u"man/lumora.1.in"_s}) {
        for (const QString &command : commands())
            QTest::addRow("%s in %s", qPrintable(command), qPrintable(file)) << file << command;
    }
}

void ShellHelpTest::namesEveryOption()
{
    QFETCH(QString, file);
    QFETCH(QString, command);
    const QString content = contentOf(file).replace(u"\\-"_s, u"-"_s);
    QVERIFY(content.contains(command));
    const QStringList options = optionsOf(command);
    QVERIFY(options.contains(u"--help"_s));
    for (const QString &option : options) {
        const bool fish = file.endsWith(u".fish"_s);
        const QString named = fish ? u"-l "_s + option.mid(2) + u' ' : option;
        QVERIFY2(content.contains(named), qPrintable(option));
    }
}

void ShellHelpTest::namesEveryToolOfTheWindow()
{
    const QString menuEntry = contentOf(u"desktop/lumora.desktop.in"_s);
    QStringList tools = menuEntry.section(u"Actions="_s, 1).section(u'\n', 0, 0).split(u';', Qt::SkipEmptyParts);
    QCOMPARE(tools.takeLast(), u"today"_s);
    QCOMPARE(tools.size(), 6);
    const QString help =
        QString::fromUtf8(runLumora({u"--help"_s}).out).section(u"Window:"_s, 1).section(u"General:"_s, 0, 0);
    const QString manual = contentOf(u"man/lumora.1.in"_s).section(u"DESCRIPTION"_s, 1).section(u".SH"_s, 0, 0);
    QVERIFY(help.contains(u"--tool NAME"_s));
    for (const QString &file : {u"shell/lumora.bash"_s, u"shell/_lumora"_s})
        QVERIFY2(contentOf(file).contains(u"--today"_s), qPrintable(file));
    QVERIFY(contentOf(u"shell/lumora.fish"_s).contains(u"-l today "_s));
    for (const QString &text : {help, contentOf(u"man/lumora.1.in"_s).replace(u"\\-"_s, u"-"_s)})
        QVERIFY(text.contains(u"--today"_s));
    for (const QString &tool : tools) {
        QVERIFY2(help.contains(tool), qPrintable(tool));
        QVERIFY2(manual.contains(tool), qPrintable(tool));
    }
}

void ShellHelpTest::bashOffers_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("offers");
    QTest::newRow("commands") << QStringList{u"ic"_s} << u"icons icon"_s;
    QTest::newRow("options") << QStringList{u"icons"_s, u"--p"_s} << u"--platform"_s;
    QTest::newRow("a platform") << QStringList{u"icons"_s, u"--platform"_s, u"ip"_s} << u"iphone ipad"_s;
    QTest::newRow("a second platform") << QStringList{u"icons"_s, u"--platform"_s, u"mac,f"_s} << u"mac,favicon"_s;
    QTest::newRow("corners") << QStringList{u"icon"_s, u"--corners"_s, u"ios"_s} << u"ios6 ios7"_s;
    QTest::newRow("folders only") << QStringList{u"icons"_s, u"--to"_s, u"/et"_s} << u"/etc"_s;
}

void ShellHelpTest::bashOffers()
{
    QFETCH(QStringList, words);
    QProcess bash;
    // Word splitting by bash itself is not under test; the function is called as bash calls it.
    const QString script = u"compopt() { :; }; . \"$1\"; shift; COMP_WORDS=(lumora \"$@\"); COMP_CWORD=$#; _lumora; "
                           "echo \"${COMPREPLY[*]}\""_s;
    bash.start(u"bash"_s, QStringList{u"-c"_s, script, u"bash"_s,
                                      QStringLiteral(LUMORA_SOURCE_DIR "/packaging/shell/lumora.bash")} +
                              words);
    QVERIFY(bash.waitForFinished());
    QTEST(QString::fromUtf8(bash.readAllStandardOutput()).trimmed(), "offers");
}

void ShellHelpTest::fishOffers_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("offers");
    QTest::newRow("commands") << u"lumora down"_s << QStringList{u"downscale"_s};
    QTest::newRow("options") << u"lumora icons --p"_s << QStringList{u"--platform"_s};
    QTest::newRow("a platform") << u"lumora icons --platform i"_s
                                << QStringList{u"icon-composer"_s, u"ios"_s, u"ipad"_s, u"iphone"_s};
    QTest::newRow("a second platform") << u"lumora icons --platform mac,f"_s << QStringList{u"mac,favicon"_s};
    QTest::newRow("corners") << u"lumora icon --corners ios"_s << QStringList{u"ios6"_s, u"ios7"_s};
    QTest::newRow("folders only") << u"lumora icons --to /et"_s << QStringList{u"/etc/"_s};
}

void ShellHelpTest::fishOffers()
{
    QFETCH(QString, line);
    QTemporaryDir home; // the shell makes folders there
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        environment.insert(QString::fromLatin1(name), home.path());
    QProcess fish;
    fish.setProcessEnvironment(environment);
    fish.start(u"fish"_s, {u"--no-config"_s, u"-c"_s, u"source $argv[1]; complete -C $argv[2]"_s,
                           QStringLiteral(LUMORA_SOURCE_DIR "/packaging/shell/lumora.fish"), line});
    QVERIFY(fish.waitForFinished());
    QCOMPARE(fish.readAllStandardError(), QByteArray());
    QStringList found;
    for (const QString &offer : QString::fromUtf8(fish.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts))
        found << offer.section(u'\t', 0, 0);
    QTEST(found, "offers");
}

void ShellHelpTest::zshOffers_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("offers");
    QTest::newRow("commands") << u"lumora ic"_s << u"write icons of sizes of your own"_s;
    QTest::newRow("options") << u"lumora icons --p"_s << u"platform"_s;
    QTest::newRow("a platform") << u"lumora icons --platform i"_s << u"iphone"_s;
    QTest::newRow("a second platform") << u"lumora icons --platform mac,f"_s << u"favicon"_s;
    QTest::newRow("corners") << u"lumora icon --corners io"_s << u"ios7"_s;
    QTest::newRow("features") << u"lumora devices --feature gy"_s << u"gyroscope"_s;
}

void ShellHelpTest::zshOffers()
{
    QFETCH(QString, line);
    QFETCH(QString, offers);
    QProcess zsh;
    zsh.start(u"zsh"_s, {u"-f"_s, QStringLiteral(LUMORA_SOURCE_DIR "/tests/cli/complete.zsh"),
                         QStringLiteral(LUMORA_SOURCE_DIR "/packaging/shell"), line, offers});
    QVERIFY2(zsh.waitForFinished(), "zsh never offered it");
    QCOMPARE(zsh.exitCode(), 0);
}

QTEST_GUILESS_MAIN(ShellHelpTest)
#include "ShellHelpTest.moc"
