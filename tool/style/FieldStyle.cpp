// SPDX-License-Identifier: MIT
#include "FieldStyle.h"

#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int fieldHeight = 36;
constexpr int textSize = 15;

} // namespace

void styleField(QLineEdit *field, const QColor &focused)
{
    field->setFixedHeight(fieldHeight);
    field->setFont(latoRegular(textSize));
    field->setStyleSheet(uR"(
        QLineEdit { background: %1; color: %2; border: 1px solid %3; border-radius: 6px; padding: 0 7px; }
        QLineEdit:focus { border: 2px solid %4; padding: 0 6px; }
    )"_s.arg(palette::textFieldBackground.name(), palette::chromeText.name(), palette::panelOutline.name(),
             focused.name()));
}

} // namespace lumora
