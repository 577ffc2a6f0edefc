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

    /// Lets the user point at a color, on behalf of the window.
    virtual void pick(QWidget *window) = 0;

signals:
    void picked(const lumora::RgbaColor &color);
    /// The user canceled.
    void canceled();
    /// The system cannot pick colors, or refused.
    void failed();
};

/// The desktop's own color picker if its portal offers one, else reading the screen under X11.
std::unique_ptr<Pipette> makeScreenPipette();

} // namespace lumora
