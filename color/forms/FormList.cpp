// SPDX-License-Identifier: MIT
#include "FormList.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

std::vector<FormRow> formRows(const WideColor &color, ColorPlatform first, FormGamut gamut)
{
    const bool clips = isClippedIn(color, RgbSpace::Srgb);
    std::vector<FormRow> rows;
    for (const ColorForm &form : colorForms()) {
        FormRow row{&form, formText(form, color), {}, clips && !form.showsAnyGamut};
        QString wide = gamut == FormGamut::DisplayP3 ? displayP3FormText(form, color) : QString();
        if (!wide.isEmpty()) {
            row.srgbText = std::move(row.text);
            row.text = std::move(wide);
        }
        rows.push_back(std::move(row));
    }
    // clang 14 does not compile the subrange that std::ranges::stable_partition returns.
    std::stable_partition(rows.begin(), rows.end(),
                          [first](const FormRow &row) { return row.form->platform == first; });
    return rows;
}

QString fieldText(const WideColor &color)
{
    if (isClippedIn(color, RgbSpace::Srgb))
        return formText(*colorFormNamed(u"css-p3"), color);
    const QString hex = hex8Of(color);
    return hex.endsWith("ff"_L1) ? hex.first(7) : hex;
}

} // namespace lumora
