// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/popover/SFBPopover.h"
#include "widgets/popover/ScreenCoordinates.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWindow>

namespace lumora::testing
{

/// A window of 400 × 300 at (200, 100) with a button in its middle and a text field above it.
struct Scene
{
    Scene()
    {
        window.setGeometry(200, 100, 400, 300);
        button = new QPushButton(QStringLiteral("button"), &window);
        button->setGeometry(150, 130, 100, 40);
        field = new QLineEdit(&window);
        field->setGeometry(150, 20, 100, 30);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        button->setFocus();
    }
    QWidget window;
    QPushButton *button = nullptr;
    QLineEdit *field = nullptr;
};

inline QWidget *plainContent(const QSize &size = QSize(200, 100))
{
    auto *content = new QWidget;
    content->resize(size);
    return content;
}

/// A content with one control in it.
inline QWidget *contentWith(QWidget *control)
{
    QWidget *content = plainContent();
    control->setParent(content);
    control->setGeometry(10, 10, 100, 30);
    return content;
}

/// The arrow's tip in Qt's screen coordinates.
inline QPointF tipOf(const SFBPopover &popover)
{
    return flippedOnScreen(popover.popoverWindow()->attachmentPoint());
}

} // namespace lumora::testing
