// SPDX-License-Identifier: MIT
#include "SizeText.h"

using namespace Qt::StringLiterals;

namespace lumora
{

QString pixelsText(QSize size)
{
    return u"%1 x %2 pixels"_s.arg(size.width()).arg(size.height());
}

FailureDetail pixelsDetail(QSize size)
{
    return {"DETAIL_PIXELS",
            {{"[WIDTH]", QString::number(size.width())}, {"[HEIGHT]", QString::number(size.height())}}};
}

} // namespace lumora
