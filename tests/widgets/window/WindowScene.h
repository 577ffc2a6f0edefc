// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/window/INAppStoreWindow.h"
#include "widgets/window/INWindowButton.h"

#include <QTest>

namespace lumora::testing
{

inline INWindowButton *light(const INAppStoreWindow &window, QAnyStringView kind)
{
    return window.findChild<INWindowButton *>(kind.toString());
}

/// A window of 600 × 400 at (100, 100), away from the platform's pointer, shown and active.
inline void show(INAppStoreWindow &window)
{
    window.setGeometry(100, 100, 600, 400);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

} // namespace lumora::testing
