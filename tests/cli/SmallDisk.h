// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>

namespace lumora
{

/// A folder on a disk of its own with a given size in bytes. Mounting needs root.
class SmallDisk
{
public:
    explicit SmallDisk(quint64 bytes);
    ~SmallDisk();
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    /// False where this process may not mount.
    bool isMounted() const { return m_mounted; }
    QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
    bool m_mounted = false;
};

} // namespace lumora
