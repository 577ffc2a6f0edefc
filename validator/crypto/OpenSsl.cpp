// SPDX-License-Identifier: MIT
#include "OpenSsl.h"

namespace lumora
{

const OpenSsl &openSsl()
{
    static const OpenSsl functions;
    return functions;
}

} // namespace lumora
