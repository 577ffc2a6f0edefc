// SPDX-License-Identifier: MIT
#include "SnippetBox.h"

#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int textSize = 11;
constexpr int leastHeight = 40;

} // namespace

SnippetBox::SnippetBox(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setFrameShape(QFrame::NoFrame);
    setStyleSheet(u"QPlainTextEdit { background: palette(base); border: 2px solid palette(base); "
                  u"border-radius: 5px; padding: 4px; }"
                  "QPlainTextEdit:focus { border-color: palette(highlight); }"_s);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    // Code is written from the left in every language.
    setLayoutDirection(Qt::LeftToRight);
    setTabChangesFocus(true);
    setAccessibleName(qtTrId("ACCESSIBLE_SNIPPET"));
    setMinimumHeight(leastHeight);
    setFont(latoBold(textSize));
    QPalette colors = palette();
    colors.setColor(QPalette::Text, palette::chromeText);
    setPalette(colors);
}

} // namespace lumora
