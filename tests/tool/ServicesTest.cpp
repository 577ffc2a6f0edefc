// SPDX-License-Identifier: MIT
#include "tool/services/Services.h"
#include "tool/services/LocalFiles.h"
#include "tool/services/StartFolder.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QHeaderView>
#include <QImage>
#include <QMimeDatabase>
#include <QScopeGuard>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <future>

using namespace Qt::StringLiterals;
using namespace lumora;

class ServicesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The toolkit's file dialog would write its settings into the tester's home.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, u"/dev/null"_s);
    }

    void defaultApplicationOfLists_data()
    {
        QTest::addColumn<QStringList>("lists");
        QTest::addColumn<QString>("expected");
        const QString wanted = u"[Default Applications]\nx-scheme-handler/mailto=one.desktop;two.desktop;\n"_s;
        QTest::newRow("the first of the entry") << QStringList{wanted} << u"one.desktop"_s;
        QTest::newRow("the first list wins")
            << QStringList{u"[Default Applications]\nx-scheme-handler/mailto=mine.desktop\n"_s, wanted}
            << u"mine.desktop"_s;
        QTest::newRow("a list without the type is passed over")
            << QStringList{u"[Default Applications]\ntext/html=web.desktop\n"_s, wanted} << u"one.desktop"_s;
        QTest::newRow("added associations are no defaults")
            << QStringList{u"[Added Associations]\nx-scheme-handler/mailto=no.desktop\n"_s} << QString();
        QTest::newRow("an empty entry is passed over")
            << QStringList{u"[Default Applications]\nx-scheme-handler/mailto=\n"_s, wanted} << u"one.desktop"_s;
        QTest::newRow("nothing") << QStringList() << QString();
    }
    void defaultApplicationOfLists()
    {
        QFETCH(QStringList, lists);
        QTEST(defaultApplication(lists, u"x-scheme-handler/mailto"_s), "expected");
    }

    void startFolder()
    {
        QTemporaryDir temporary;
        const QString folder = temporary.path();
        QCOMPARE(existingStartFolder(folder), folder);
        QCOMPARE(existingStartFolder(folder + u"/gone/deeper"_s), folder);
    }

    void startsAtHomeWhenTheFolderGivesNoAnswer()
    {
        const auto share = std::make_shared<std::promise<void>>();
        const FolderProbe stalled = [answer = std::shared_future(share->get_future())](const QString &path) {
            if (path.startsWith(u"/share"_s))
                answer.wait();
            return true;
        };
        QCOMPARE(existingStartFolder(u"/share/pictures"_s, stalled), QDir::homePath());
        QCOMPARE(existingStartFolder(u"/disk"_s, stalled), u"/disk"_s);
        share->set_value();
    }

    void startsInTheUsersDocumentsOrHome()
    {
        const QTemporaryDir home;
        const auto restored = [before = qgetenv("HOME"), config = qgetenv("XDG_CONFIG_HOME")] {
            qputenv("HOME", before);
            qputenv("XDG_CONFIG_HOME", config);
        };
        const auto guard = qScopeGuard(restored);
        qputenv("HOME", QFile::encodeName(home.path()));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.filePath(u".config"_s)));
        QCOMPARE(existingStartFolder({}), home.path());
        QVERIFY(QDir(home.path()).mkdir(u"Documents"_s));
        QCOMPARE(existingStartFolder({}), home.filePath(u"Documents"_s));
    }

    void localFilesOfAddresses()
    {
        const QString host = QSysInfo::machineHostName();
        QCOMPARE(localFiles({QUrl(u"file:///a%20b.png"_s), QUrl(u"https://example.org/x.png"_s),
                             QUrl(u"file://localhost/c.png"_s), QUrl(u"file://"_s + host + u"/d.png"_s)}),
                 (QStringList{u"/a b.png"_s, u"/c.png"_s, u"/d.png"_s}));
    }

    void fileDialogIsASheetThatAnswersOnce()
    {
        QTemporaryDir temporary;
        const QString path = temporary.filePath(u"one.png"_s);
        QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        QWidget window;
        window.show();
        DialogFileChooser chooser;
        QStringList chosen;
        chooser.chooseFiles(&window, {u"Choose"_s, temporary.path(), {u"PNG (*.png)"_s}, false},
                            [&](const QStringList &paths) { chosen = paths; });
        auto *dialog = window.findChild<QFileDialog *>();
        QVERIFY(dialog != nullptr);
        QCOMPARE(dialog->windowModality(), Qt::WindowModal);
        QCOMPARE(dialog->windowTitle(), u"Choose"_s);
        QCOMPARE(dialog->directory().path(), temporary.path());
        QCOMPARE(dialog->fileMode(), QFileDialog::ExistingFile);
        dialog->selectFile(path);
        static_cast<QDialog *>(dialog)->accept();
        QTRY_COMPARE(chosen, QStringList{path});
        QTRY_VERIFY(window.findChild<QFileDialog *>() == nullptr);
    }

    void fileDialogOpensWhereTheLastChoiceWasMadeAndShowsWholeNames()
    {
        const QTemporaryDir temporary;
        const QString path = temporary.filePath(u"one.png"_s);
        QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        QWidget window;
        window.show();
        DialogFileChooser chooser;
        chooser.chooseFiles(&window, {u"Choose"_s, temporary.path(), {}, false}, [](const QStringList &) {});
        auto *dialog = window.findChild<QFileDialog *>();
        dialog->selectFile(path);
        static_cast<QDialog *>(dialog)->accept();
        QTRY_VERIFY(window.findChild<QFileDialog *>() == nullptr);
        chooser.chooseFiles(&window, {u"Choose"_s, {}, {}, false}, [](const QStringList &) {});
        dialog = window.findChild<QFileDialog *>();
        QCOMPARE(dialog->directory().path(), temporary.path());
        QVERIFY(dialog->width() >= 800);
        const auto *list = dialog->findChild<QTreeView *>(u"treeView"_s);
        QVERIFY(list->columnWidth(0) >= 300);
        for (int column = 1; column < list->header()->count(); ++column)
            QVERIFY(list->isColumnHidden(column) ||
                    list->columnWidth(column) >= list->header()->sectionSizeHint(column));
    }

    void fileDialogOpensNoFileToShowIt()
    {
        const QTemporaryDir temporary;
        const QString path = temporary.filePath(u"a.unknown"_s);
        QImage picture(8, 8, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(path, "PNG"));
        QWidget window;
        window.show();
        DialogFileChooser chooser;
        chooser.chooseFiles(&window, {u"Choose"_s, temporary.path(), {}, false}, [](const QStringList &) {});
        const auto *dialog = window.findChild<QFileDialog *>();
        QMimeDatabase kinds;
        QCOMPARE(dialog->iconProvider()->type(QFileInfo(path)),
                 kinds.mimeTypeForName(u"application/octet-stream"_s).comment());
        QCOMPARE(dialog->iconProvider()->type(QFileInfo(temporary.filePath(u"a.png"_s))),
                 kinds.mimeTypeForName(u"image/png"_s).comment());
        QVERIFY(!dialog->iconProvider()->icon(QFileInfo(path)).isNull());
    }

    void folderDialogAnswersItsFolder()
    {
        QTemporaryDir temporary;
        QWidget window;
        window.show();
        DialogFolderChooser chooser;
        QString chosen;
        chooser.chooseFolder(&window, {u"Where to"_s, temporary.path()}, [&](const QString &path) { chosen = path; });
        auto *dialog = window.findChild<QFileDialog *>();
        QVERIFY(dialog != nullptr);
        QCOMPARE(dialog->fileMode(), QFileDialog::Directory);
        QVERIFY(dialog->testOption(QFileDialog::ShowDirsOnly));
        QVERIFY(!dialog->testOption(QFileDialog::ReadOnly));
        static_cast<QDialog *>(dialog)->accept();
        QTRY_COMPARE(chosen, temporary.path());
    }

    void canceledDialogsSayNothing()
    {
        QWidget window;
        window.show();
        DialogFileChooser files;
        DialogFolderChooser folders;
        bool answered = false;
        files.chooseFiles(&window, {u"Choose"_s, {}, {}, true}, [&](const QStringList &) { answered = true; });
        folders.chooseFolder(&window, {u"Where to"_s, {}}, [&](const QString &) { answered = true; });
        const auto dialogs = window.findChildren<QFileDialog *>();
        QCOMPARE(dialogs.size(), 2);
        for (QFileDialog *dialog : dialogs)
            dialog->reject();
        QTRY_VERIFY(window.findChild<QFileDialog *>() == nullptr);
        QVERIFY(!answered);
    }

    void clipboardHoldsTheText()
    {
        SystemClipboard clipboard;
        clipboard.setText(u"<key>"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"<key>"_s);
        QVERIFY(clipboard.files().isEmpty());
        QVERIFY(clipboard.image().isNull());
    }
};

QTEST_MAIN(ServicesTest)
#include "ServicesTest.moc"
