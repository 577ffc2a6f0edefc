// SPDX-License-Identifier: MIT
#pragma once

#include "icons/IconsViewController.h"
#include "resources/Resources.h"
#include "tests/doubles/DrivenCaption.h"
#include "tests/doubles/RecordingServices.h"
#include "tool/DropHighlight.h"
#include "ui_IconsViewController.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/popover/ScreenCoordinates.h"
#include "widgets/style/Palette.h"

#include <QDir>
#include <QDirIterator>
#include <QLineF>
#include <QTemporaryDir>

namespace lumora
{

/// The tool in a window, as the shell shows it, with recording services.
struct IconsPane
{
    IconsPane() : tool(services.services()), ui(tool.outlets())
    {
        window.resize(900, 660);
        tool.view()->setParent(&window);
        tool.view()->setGeometry(65, 60, 835, 600);
        tool.popupView()->setAnimates(false);
        window.show();
    }
    QString popupTitle() const
    {
        return tool.popupView()->isVisible() ? tool.popupContentView()->titleLabel()->text() : QString();
    }
    QString popupMessage() const { return tool.popupContentView()->messageLabel()->text(); }
    bool popupIsError() const { return tool.popupView()->borderColor() == palette::errorLight; }
    /// Presses the platform export and confirms the folder.
    void exportTo(const QString &folder)
    {
        ui.generateIconsButton->click();
        services.folderChooser.confirm(folder);
    }
    /// Whether the popup's arrow points at the control.
    bool popupPointsAt(const QWidget *control) const
    {
        const QPointF below = control->mapToGlobal(QPointF(control->width() / 2.0, control->height() + 5));
        return QLineF(tool.popupView()->popoverWindow()->attachmentPoint(), flippedOnScreen(below)).length() < 1;
    }
    /// Ends the time after which the buttons' captions return to rest.
    void letTimePass() const
    {
        for (const TimedCaption *caption : tool.findChildren<TimedCaption *>())
            lumora::letTimePass(*caption);
    }
    bool isDone() const { return ui.generateIconsButton->text() == qtTrId("ICONS_DONE"); }

    RecordingServices services;
    QWidget window;
    IconsViewController tool;
    const Ui::IconsViewController &ui;
};

inline QString savePicture(const QTemporaryDir &folder, const QString &name, QSize size, int dotsPerMeter = 0)
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(QColor(200, 30, 60));
    if (dotsPerMeter > 0) {
        picture.setDotsPerMeterX(dotsPerMeter);
        picture.setDotsPerMeterY(dotsPerMeter);
    }
    const QString path = folder.filePath(name);
    return picture.save(path, "PNG") ? path : QString();
}

inline QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << QDir(folder).relativeFilePath(walk.next());
    files.sort();
    return files;
}

} // namespace lumora
