// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppDelegate.h"
#include "icons/IconsViewController.h"
#include "tests/doubles/RecordingServices.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/window/INAppStoreWindow.h"

#include <QTemporaryDir>

namespace lumora
{

/// The whole application with recording services; its header popups open and close without a fade.
struct Application
{
    Application() : delegate(services.services())
    {
        delegate.applicationDidFinishLaunching();
        delegate.popupView()->setAnimates(false);
        delegate.aboutPopupView()->setAnimates(false);
        delegate.window()->show();
    }

    IconsViewController &icons() { return static_cast<IconsViewController &>(*delegate.controller(0)); }

    RecordingServices services;
    AppDelegate delegate;
};

/// Writes a picture into the folder and returns its path.
inline QString savePicture(const QTemporaryDir &folder, const QString &name, QSize size = {1024, 1024})
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    const QString path = folder.filePath(name);
    return picture.save(path, "PNG") ? path : QString();
}

} // namespace lumora
