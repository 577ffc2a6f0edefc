// SPDX-License-Identifier: MIT
#include "SmallDisk.h"

#include <sys/mount.h>

namespace lumora
{

SmallDisk::SmallDisk(quint64 bytes)
{
    const QByteArray options = "size=" + QByteArray::number(bytes);
    m_mounted = ::mount("tmpfs", m_folder.path().toLocal8Bit().constData(), "tmpfs", 0, options.constData()) == 0;
}

SmallDisk::~SmallDisk()
{
    if (m_mounted)
        ::umount2(m_folder.path().toLocal8Bit().constData(), MNT_DETACH);
}

} // namespace lumora
