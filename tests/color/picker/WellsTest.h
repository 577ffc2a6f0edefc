// SPDX-License-Identifier: MIT
#pragma once

#include "WellsWindow.h"

namespace lumora
{

/// The base of the tests of wells, popover and panel: each begins with a new window with two wells.
class WellsTest : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<WellsWindow> m_wells;

    static constexpr RgbaColor first = WellsWindow::first;
    static constexpr RgbaColor second = WellsWindow::second;
    static constexpr RgbaColor picked = WellsWindow::picked;
    static BFColorPickerPopover *popover() { return WellsWindow::popover(); }
    static ColorPanel *panel() { return WellsWindow::panel(); }

private slots:
    void init()
    {
        m_wells = std::make_unique<WellsWindow>();
        QVERIFY(QTest::qWaitForWindowExposed(&m_wells->window));
    }
    void cleanup() { m_wells.reset(); }
};

} // namespace lumora
