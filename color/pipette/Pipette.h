// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"

#include <QObject>

#include <memory>

class QWidget;

namespace lumora
{

/// Picks a color anywhere on the screen. One pick at a time; each ends with exactly one of the signals.
class Pipette : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Lets the user point at a color; the window is the one that asks.
    virtual void pick(QWidget *window) = 0;

signals:
    void picked(const lumora::RgbaColor &color);
    /// The user changed their mind.
    void canceled();
    /// The system has no way to do it, or refused.
    void failed();
};

/// The desktop's own color picker where its portal offers one, else X11's way of reading the screen.
std::unique_ptr<Pipette> makeScreenPipette();

} // namespace lumora
