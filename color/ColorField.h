// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"

#include <QLineEdit>

namespace lumora
{

/// The field for the color's text, written in the color itself on a rounded background that keeps it readable.
class ColorField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit ColorField(QWidget *parent = nullptr);

    QColor textColor() const { return palette().color(QPalette::Text); }
    /// Also chooses the background: white or dark, whichever has more contrast with the color.
    void setTextColor(const RgbaColor &color);
    QColor groundColor() const { return m_groundColor; }
    /// Replaces the whole text, as one step that can be undone.
    void replaceText(const QString &text);

signals:
    /// The user pastes the clipboard's content, by key or from the menu. The owner decides what to do with it.
    void pasteWanted();
    /// The user pastes the selection of another place at the cursor, by the middle mouse button.
    void textOffered(const QString &text);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_groundColor;
};

} // namespace lumora
