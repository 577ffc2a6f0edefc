// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

class QColor;
class QWidget;

namespace lumora
{

class DropView;
class ElidedLabel;
class HoverButton;

// What sides of today with choices and a drop area have in common.

/// Points between controls.
inline constexpr int todayGap = 12;

/// A button as wide as its text wants, in a tool's colors.
HoverButton *makeActionButton(const QString &text, const QColor &color, const QColor &borderColor);

/// Fills the pane: the choices in a panel on the leading side, beside them the work from top to bottom. The first of
/// the work takes the room that is left.
void layOutSide(QWidget *pane, QWidget *choices, const QList<QWidget *> &work);

/// Fills the area: the summary in its top line, beside the switch in the corner, and the content below.
void layOutDropArea(DropView *area, ElidedLabel *summary, const QList<QWidget *> &content);

} // namespace lumora
