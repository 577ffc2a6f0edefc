// SPDX-License-Identifier: MIT
#include "SpooledPackage.h"

#include "cli/console/SpooledInput.h"
#include "validator/archive/OpenPackage.h"

#include <utility>

#include <unistd.h>

namespace lumora
{

void SpooledPackage::spool(const QString &name)
{
    auto folder = WorkFolder::make();
    if (!folder) {
        m_spooled = folder.failure();
        return;
    }
    m_folder = std::move(folder.value());
    m_spooled = spoolDescriptor(STDIN_FILENO, name, path(), largestSpooledPackage);
}

Result<std::unique_ptr<PackageSource>> SpooledPackage::open() const
{
    if (!m_spooled)
        return m_spooled.failure();
    return openPackage(path());
}

} // namespace lumora
