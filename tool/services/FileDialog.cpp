// SPDX-License-Identifier: MIT
#include "FileDialog.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileIconProvider>
#include <QHeaderView>
#include <QMimeDatabase>
#include <QTreeView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr QSize dialogSize(860, 540);
constexpr int nameWidth = 360;
/// Starting a portal takes a moment; the limit is for a portal that hangs.
constexpr int patience = 5000; // milliseconds
constexpr uint firstVersionWithFolders = 3;

/// Whether the toolkit leaves its dialogs to a portal. It then shows none if the portal refuses.
bool leavesDialogsToPortal()
{
    const QString theme = qEnvironmentVariable("QT_QPA_PLATFORMTHEME");
    constexpr QLatin1StringView themes[] = {"xdgdesktopportal"_L1, "flatpak"_L1, "snap"_L1};
    return std::any_of(std::begin(themes), std::end(themes), [&](QLatin1StringView name) { return theme == name; });
}

/// Judges files by their names. The toolkit's own provider opens files, on the main thread, too, and so a share that
/// does not answer would freeze the window.
class IconsByName final : public QFileIconProvider
{
public:
    using QFileIconProvider::icon;

    QIcon icon(const QFileInfo &info) const override
    {
        const QIcon standard = icon(info.isDir() ? Folder : File);
        return info.isDir() ? standard : QIcon::fromTheme(kindOf(info).iconName(), standard);
    }

    QString type(const QFileInfo &info) const override
    {
        return info.isDir() ? QFileIconProvider::type(info) : kindOf(info).comment();
    }

private:
    QMimeType kindOf(const QFileInfo &info) const
    {
        return m_kinds.mimeTypeForFile(info.fileName(), QMimeDatabase::MatchExtension);
    }

    QMimeDatabase m_kinds;
};

/// Outlives every dialog, whose threads use it.
QFileIconProvider *iconsByName()
{
    static IconsByName icons;
    return &icons;
}

void widen(const QFileDialog &dialog)
{
    // Null where the desktop shows its own dialog.
    if (const auto *list = dialog.findChild<QTreeView *>(u"treeView"_s)) {
        for (int column = 1; column < list->header()->count(); ++column)
            list->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
        list->header()->resizeSection(0, nameWidth);
    }
}

void open(QWidget *window, const FileDialogRequest &request, const std::function<void(QFileDialog *)> &prepare,
          bool ofDesktop)
{
    auto *dialog = new QFileDialog(window, request.title, request.startFolder);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QFileDialog::DontUseNativeDialog, !ofDesktop);
    dialog->setIconProvider(iconsByName());
    dialog->setFileMode(request.mode);
    dialog->resize(dialogSize);
    widen(*dialog);
    prepare(dialog);
    dialog->open();
}

QDBusMessage questionForVersion()
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s,
                                       u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << u"org.freedesktop.portal.FileChooser"_s << u"version"_s;
    return question;
}

} // namespace

void openFileDialog(QWidget *window, const FileDialogRequest &request, std::function<void(QFileDialog *)> prepare)
{
    if (!leavesDialogsToPortal()) {
        open(window, request, prepare, true);
        return;
    }
    const QString name = u"portal's file dialog"_s;
    if (window->findChild<QDBusPendingCallWatcher *>(name) != nullptr)
        return;
    auto *watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(questionForVersion(), patience), window);
    watcher->setObjectName(name);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, window,
                     [window, request, prepare = std::move(prepare), watcher] {
                         const QDBusPendingReply<QDBusVariant> reply = *watcher;
                         watcher->setObjectName({});
                         watcher->deleteLater();
                         const uint needed = request.mode == QFileDialog::Directory ? firstVersionWithFolders : 1;
                         open(window, request, prepare, !reply.isError() && reply.value().variant().toUInt() >= needed);
                     });
}

} // namespace lumora
