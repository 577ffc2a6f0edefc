// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>

namespace lumora
{

/// The shapes that a drawing may have.
enum class SvgShape { Square, Any };

/// An SVG drawing that can be drawn in any size. It is drawn offline, without scripts and fonts, and only if that is
/// known to take bounded time and memory.
class SvgDrawing
{
public:
    /// The most pixels that a drawing is drawn in.
    static constexpr qint64 largestArea = 16LL * 1024 * 1024;

    /// The drawing in these bytes. Fails as `inspectSvg` does, and with `WrongSize` for one that must be square and is
    /// not, and `TooLarge` for one that would take too long.
    static Result<std::shared_ptr<const SvgDrawing>> read(const QByteArray &bytes, const QString &name,
                                                          SvgShape shape = SvgShape::Square);
    ~SvgDrawing();

    /// The size that the file asks for, in points, at least 1 by 1.
    QSize size() const;

    /// The drawing `edge` pixels wide and high, as `QImage::Format_RGBA8888_Premultiplied`; callable on any thread.
    QImage at(int edge) const { return at(QSize(edge, edge)); }

    /// The same in any size of at most `largestArea`. It fills the picture if that has the drawing's proportions, but
    /// for what rounding takes from them.
    QImage at(QSize pixels) const;

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
