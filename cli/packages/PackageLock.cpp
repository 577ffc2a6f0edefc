// SPDX-License-Identifier: MIT
#include "PackageLock.h"

#include "cli/console/CommandText.h"
#include "cli/console/Console.h"
#include "foundation/ProcessLock.h"
#include "validator/crypto/Digest.h"

namespace lumora
{

void lockIn(Console &console, const LockedPlaces &places)
{
    loadCryptoLibrary();
    const ProcessLock lock = lockProcess(places);
    if (lock.files)
        console.note(commandText(lock.calls ? "CLI_SANDBOX_BOTH" : "CLI_SANDBOX_FILES"));
    else
        console.note(commandText(lock.calls ? "CLI_SANDBOX_CALLS" : "CLI_SANDBOX_NONE"));
}

} // namespace lumora
