// SPDX-License-Identifier: MIT
#pragma once

#include "tests/doubles/RecordingServices.h"
#include "tool/PopoverAlert.h"
#include "ui_ValidaterViewController.h"
#include "validator/OpacityFade.h"
#include "validator/ValidatePopupContentView.h"
#include "validator/ValidaterViewController.h"
#include "validator/bundle/WorkFolder.h"
#include "widgets/popover/SFBPopover.h"

#include <QTest>

#include <algorithm>

namespace lumora
{

/// How much slower than usual the program may be.
inline const int timeFactor = std::max(qEnvironmentVariableIntValue("LUMORA_TIME_FACTOR"), 1);
/// The time limit for a small package, in milliseconds; generous, since the machine may be busy with other tests.
inline const int readingTime = 20'000 * timeFactor;

/// The pane in a window, with services that record.
class PaneInWindow
{
public:
    enum class Room { There, None };

    explicit PaneInWindow(Room room = Room::There, const QString &reader = {},
                          std::chrono::milliseconds patience = std::chrono::minutes(timeFactor))
        : services{{},
                   {},
                   {},
                   {},
                   {},
                   std::make_shared<ReadyFiles>(),
                   room == Room::There && folder ? folder.value()->path() : QString(),
                   reader,
                   patience},
          tool(services.services())
    {
        window.resize(900, 660);
        tool.view()->setParent(&window);
        tool.view()->setGeometry(65, 65, 835, 595);
        tool.popupView()->setAnimates(false);
        tool.validatePopup()->setAnimates(false);
        window.show();
    }
    ~PaneInWindow()
    {
        if (PopoverAlert::currentAlert() != nullptr)
            PopoverAlert::currentAlert()->stopSynchronousPopoverAlert(PopoverAlert::currentAlert()->buttons().first());
    }

    const Ui::ValidaterViewController &ui() const { return tool.outlets(); }
    bool hasFacts() const
    {
        return opacity(ui().validAppIconsBox) == 1 && opacity(ui().appNameField) == 1 &&
               opacity(ui().readingLoaderField) == 0;
    }
    QString explanation() const { return tool.validatePopupContentView()->messageLabel()->text(); }

    // Made as in the program: before the tools, and deleted after them.
    Result<std::unique_ptr<WorkFolder>> folder = WorkFolder::make();
    RecordingServices services;
    QWidget window;
    ValidaterViewController tool;
};

} // namespace lumora
