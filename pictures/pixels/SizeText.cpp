// SPDX-License-Identifier: MIT
#include "SizeText.h"

namespace lumora
{

using namespace Qt::StringLiterals;

QString pixelsText(QSize size)
{
    return u"%1 x %2 pixels"_s.arg(size.width()).arg(size.height());
}

} // namespace lumora
