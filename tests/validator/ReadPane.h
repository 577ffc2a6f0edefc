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
                      std::chrono::milliseconds patience = std::chrono::minutes(timeFactor))
        : PaneInWindow(Room::There, reader.isEmpty() ? QStringLiteral(LUMORA_WINDOW_PROGRAM) : reader, patience)
    {
        if (!package.isEmpty())
            read(package);
    }

    void read(const QString &package)
    {
        tool.dropIpaFileFromDelegate(package);
        const bool isRead =
            QTest::qWaitFor([this] { return hasFacts() && opacity(ui().readingBar) == 0; }, readingTime);
        QVERIFY2(isRead, qPrintable(state()));
    }
    FindingsView &view() const { return *tool.findingsView(); }
    const std::vector<FindingRow *> &rows() const { return view().rows(); }
    /// The test cannot continue without the row.
    FindingRow &row(std::size_t index) const
    {
        if (index >= rows().size())
            qFatal("No row %zu of %zu: %s", index, rows().size(), qPrintable(state()));
        return *rows()[index];
    }
    void choose(int severity) { view().severities()->segments().at(static_cast<std::size_t>(severity))->click(); }

private:
    /// The sum and the note of the reader, for the message of a test that fails.
    QString state() const
    {
        return QStringLiteral("bar %1, sum \"%2\", note \"%3\"")
            .arg(opacity(ui().readingBar))
            .arg(ui().sumLabel->text(), ui().noteLabel->accessibleName());
    }
};

} // namespace lumora
