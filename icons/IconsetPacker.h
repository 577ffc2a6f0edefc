// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QString>

#include <memory>

namespace lumora
{

/// Packs a folder ".iconset" of the ten Mac pictures into the Mac icon file of the same name beside it.
class IconsetPacker
{
public:
    virtual ~IconsetPacker() = default;
    /// The path of the icon file, or the failure. Blocks until done.
    virtual Result<QString> pack(const QString &iconsetPath) const = 0;
};

/// Runs the system's tool: PROGRAM -c icns FOLDER. Ignores its exit status and output; succeeds if the icon file exists
/// afterwards.
class IconutilPacker final : public IconsetPacker
{
public:
    explicit IconutilPacker(QString program) : m_program(std::move(program)) {}
    Result<QString> pack(const QString &iconsetPath) const override;

private:
    QString m_program;
};

/// Writes the icon file itself from the folder's ten pictures; fails if one is missing.
class OwnIconsetPacker final : public IconsetPacker
{
public:
    Result<QString> pack(const QString &iconsetPath) const override;
};

/// `IconutilPacker` where /usr/bin/iconutil exists, else `OwnIconsetPacker`.
std::unique_ptr<IconsetPacker> systemIconsetPacker();

} // namespace lumora
