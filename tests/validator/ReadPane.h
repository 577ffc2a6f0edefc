// SPDX-License-Identifier: MIT
#pragma once

#include "PaneInWindow.h"
#include "validator/findings/FindingsView.h"
#include "widgets/buttons/Segment.h"
#include "widgets/buttons/SegmentedControl.h"
#include "widgets/progress/LBProgressBar.h"

#include <QTest>

namespace lumora
{

/// The pane after it has read a package, for which it starts the real program or the given one.
class ReadPane : public PaneInWindow
{
public:
    explicit ReadPane(const QString &package = {}, const QString &reader = {},
                      std::chrono::milliseconds patience = std::chrono::minutes(1))
        : PaneInWindow(Room::There, reader.isEmpty() ? QStringLiteral(LUMORA_WINDOW_PROGRAM) : reader, patience)
    {
        if (!package.isEmpty())
            read(package);
    }

    void read(const QString &package)
    {
        tool.dropIpaFileFromDelegate(package);
        QTRY_VERIFY_WITH_TIMEOUT(hasFacts() && opacity(ui().readingBar) == 0, readingTime);
    }
    FindingsView &view() const { return *tool.findingsView(); }
    const std::vector<FindingRow *> &rows() const { return view().rows(); }
    void choose(int severity) { view().severities()->segments().at(static_cast<std::size_t>(severity))->click(); }
};

} // namespace lumora
