// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>

#include <memory>

namespace lumora
{

/// A square SVG drawing that can be drawn in any size. It is drawn offline, without scripts and fonts, and only if that
/// is known to take bounded time and memory.
class SvgDrawing
{
public:
    /// The drawing in these bytes. Fails as `inspectSvg` does, and with `WrongSize` for one that is not square and
    /// `TooLarge` for one that would take too long.
    static Result<std::shared_ptr<const SvgDrawing>> read(const QByteArray &bytes, const QString &name);
    ~SvgDrawing();

    /// The drawing `edge` pixels wide and high, as `QImage::Format_RGBA8888_Premultiplied`; callable on any thread.
    QImage at(int edge) const;

    /// Whether drawing it often would be slow, so that scaling one drawing is better.
    bool isHeavy() const;

    /// The file itself.
    const QByteArray &file() const;

    /// What of the file the picture goes without; see `SvgInspection`.
    const QStringList &notDrawn() const;

private:
    class Private;
    explicit SvgDrawing(std::unique_ptr<Private> state);
    std::unique_ptr<Private> m_state;
};

} // namespace lumora
