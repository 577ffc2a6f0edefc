// SPDX-License-Identifier: MIT
#include "ColorField.h"

#include "color/spaces/Contrast.h"
#include "widgets/style/Palette.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

namespace lumora
{

namespace
{

constexpr qreal cornerRadius = 6;
constexpr qreal borderWidth = 1;
constexpr qreal focusedBorderWidth = 2;

WideColor wide(const QColor &color)
{
    return wideColorFromBytes(color.red(), color.green(), color.blue());
}

/// The menu's own paste action, found by its shortcut; null if there is none.
QAction *pasteAction(const QMenu &menu)
{
    const QString keys = QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText);
    for (QAction *action : menu.actions()) {
        if (action->text().section(u'\t', 1) == keys)
            return action;
    }
    return nullptr;
}

} // namespace

ColorField::ColorField(QWidget *parent) : QLineEdit(parent), m_groundColor(palette::window)
{
    setFrame(false);
    QPalette colors = QLineEdit::palette();
    // The platform would fill the corners, too.
    colors.setColor(QPalette::Base, Qt::transparent);
    setPalette(colors);
}

void ColorField::setTextColor(const RgbaColor &color)
{
    // The opacity is not part of the code and would make the text pale or invisible.
    const QColor opaque = platformColor({color.red, color.green, color.blue, 1.0F});
    const auto against = [&opaque](const QColor &ground) { return contrastOf(wide(opaque), wide(ground)).ratio; };
    m_groundColor = against(palette::chromeText) > against(palette::window) ? palette::chromeText : palette::window;
    QPalette colors = QLineEdit::palette();
    colors.setColor(QPalette::Text, opaque);
    setPalette(colors);
    update();
}

void ColorField::replaceText(const QString &text)
{
    selectAll();
    insert(text);
}

void ColorField::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (QAction *paste = pasteAction(*menu)) {
        paste->disconnect(this);
        // Not only texts: a copied color can be pasted, too.
        paste->setEnabled(!isReadOnly());
        connect(paste, &QAction::triggered, this, &ColorField::pasteWanted);
    }
    menu->popup(event->globalPos());
}

void ColorField::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Paste))
        emit pasteWanted();
    else
        QLineEdit::keyPressEvent(event);
}

void ColorField::mouseReleaseEvent(QMouseEvent *event)
{
    const QClipboard *clipboard = QGuiApplication::clipboard();
    if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection()) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    deselect();
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    emit textOffered(clipboard->text(QClipboard::Selection));
}

void ColorField::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(m_groundColor);
        const qreal width = hasFocus() ? focusedBorderWidth : borderWidth;
        painter.setPen(QPen(hasFocus() ? palette::color : palette::panelOutline, width));
        const qreal inset = width / 2;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);
    }
    QLineEdit::paintEvent(event);
}

} // namespace lumora
