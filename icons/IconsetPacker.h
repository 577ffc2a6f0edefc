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
    /// The path of the icon file, or why it could not be made. Blocks until it is.
    virtual Result<QString> pack(const QString &iconsetPath) const = 0;
};

/// Runs the system's tool: PROGRAM -c icns FOLDER. Its exit status and output are not looked at; what counts is whether
/// the icon file is there afterwards.
class IconutilPacker final : public IconsetPacker
{
public:
    explicit IconutilPacker(QString program) : m_program(std::move(program)) {}
    Result<QString> pack(const QString &iconsetPath) const override;

private:
    QString m_program;
};

/// Writes the icon file itself, from the pictures it finds in the folder; every one of the ten must be there.
class OwnIconsetPacker final : public IconsetPacker
{
public:
    Result<QString> pack(const QString &iconsetPath) const override;
};

/// `IconutilPacker` where /usr/bin/iconutil exists, else `OwnIconsetPacker`.
std::unique_ptr<IconsetPacker> systemIconsetPacker();

} // namespace lumora
