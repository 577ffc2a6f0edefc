// SPDX-License-Identifier: MIT
#pragma once

#include "validator/archive/PackageSource.h"
#include "validator/bundle/WorkFolder.h"

#include <QStringList>

#include <memory>

namespace lumora
{

/// Standard input as a seekable file.
class SpooledPackage
{
public:
    /// Copies all of it. Call this before the process is locked in.
    void spool(const QString &name);
    Result<std::unique_ptr<PackageSource>> open() const;
    /// The path of the copy; empty if it was not needed or there was no space.
    QStringList folders() const { return m_folder ? QStringList(m_folder->path()) : QStringList(); }

private:
    QString path() const { return m_folder->path() + QStringLiteral("/input.ipa"); }

    std::unique_ptr<WorkFolder> m_folder;
    Outcome m_spooled = Done{};
};

} // namespace lumora
