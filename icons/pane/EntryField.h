// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QLineEdit>

#include <optional>

namespace lumora
{

/// A line for a short text, in the look of the tools' fields.
class EntryField : public QLineEdit
{
    Q_OBJECT

public:
    explicit EntryField(QWidget *parent = nullptr);

    /// Whether the text is of no use; a frame in the color of errors and the accessible description say so.
    bool isRefused() const { return m_refused; }
    void setRefused(bool refused, const QString &reason);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_refused = false;
};

/// A field for an opaque color, by its name or its digits, or for none. Shows the color beside the text.
class ColorEntryField final : public EntryField
{
    Q_OBJECT

public:
    explicit ColorEntryField(QWidget *parent = nullptr);

    /// None while the text is empty or no color.
    const std::optional<QColor> &color() const { return m_color; }
    void setColor(const QColor &color) { setText(color.name()); }
    /// What is in effect while the field is empty; an invalid one for nothing.
    void setDerivedColor(const QColor &color);

signals:
    void colorChanged();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void read();

    std::optional<QColor> m_color;
    QColor m_derived;
};

} // namespace lumora
