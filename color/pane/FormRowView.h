// SPDX-License-Identifier: MIT
#pragma once

#include "color/forms/FormList.h"

#include <QKeySequence>
#include <QWidget>

class QLabel;

namespace lumora
{

class ElidedLabel;
class IconButton;
class TimedCaption;

/// One form of the color: its name, its text, the sRGB text beside a wide one, and the button that copies. A click on a
/// text copies that text.
class FormRowView final : public QWidget
{
    Q_OBJECT

public:
    /// The button's tool tip names the keys.
    explicit FormRowView(const QKeySequence &keys, QWidget *parent = nullptr);

    const FormRow &row() const { return m_row; }
    void setRow(const FormRow &row);
    IconButton *copyButton() const { return m_button; }
    /// Copies the text, as the button does.
    void copy();

signals:
    void copied(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void copyText(const QString &text);

    QKeySequence m_keys;
    FormRow m_row{};
    QLabel *m_title;
    QLabel *m_mark;
    ElidedLabel *m_text;
    ElidedLabel *m_srgbText;
    IconButton *m_button;
    TimedCaption *m_caption;
};

} // namespace lumora
