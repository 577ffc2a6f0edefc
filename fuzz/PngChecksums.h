// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Corrects the checksum of every chunk that can be found: random changes would never do that, and a reader that checks
/// them would not read any further.
void mendChecksums(QByteArray &bytes);
