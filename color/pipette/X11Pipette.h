// SPDX-License-Identifier: MIT
#pragma once

#include "Loupe.h"
#include "Pipette.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace lumora
{

/// Reads the screen itself, which X11 allows: grabs pointer and keyboard and takes the color under the pointer at the
/// next click; Escape or another mouse button cancels. On the keyboard, the arrows move the pointer by a point, with
/// Shift by ten, and Return or Space picks. Meanwhile a loupe shows the pixels around the pointer and the color's code.
class X11Pipette final : public Pipette
{
    Q_OBJECT

public:
    explicit X11Pipette(QObject *parent = nullptr);

    /// Whether the program runs under X11, which lets it read other programs' windows.
    static bool isAvailable();
    void pick(QWidget *window) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void keyPressed(const QKeyEvent &event);
    void finish();
    void take(const QPoint &globalPosition);
    void showLoupe();

    QPointer<QWidget> m_window;
    std::unique_ptr<Loupe> m_loupe;
    QTimer m_loupeTimer; ///< the pixels under a resting pointer change, too
};

} // namespace lumora
