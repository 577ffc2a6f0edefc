// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Puts the checksum of every chunk right, as far as chunks can be made out: chance would never do that, and a reader
/// that checks them would look at nothing else.
void mendChecksums(QByteArray &bytes);
