// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QStringList>

namespace lumora
{

/// The system's general clipboard.
class Clipboard
{
public:
    virtual ~Clipboard() = default;

    /// Replaces all contents by the text.
    virtual void setText(const QString &text) = 0;
    /// The paths of the copied files that are on this machine, in their order; empty when no files were copied.
    virtual QStringList files() const = 0;
    /// The copied picture, null when none was copied.
    virtual QImage image() const = 0;
    /// The copied color, invalid when none was copied; a picture or a text does not count.
    virtual QColor color() const = 0;
    /// The copied text, empty when none was copied.
    virtual QString plainText() const = 0;
};

/// The clipboard of the desktop.
class SystemClipboard final : public Clipboard
{
public:
    void setText(const QString &text) override;
    QStringList files() const override;
    QImage image() const override;
    QColor color() const override;
    QString plainText() const override;
};

} // namespace lumora
