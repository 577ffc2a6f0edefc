// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace lumora
{

/// "AA" or "AAA" with a tick on green or a cross on red, and a text for screen readers.
class VerdictMark final : public QWidget
{
    Q_OBJECT

public:
    explicit VerdictMark(const QString &level, QWidget *parent = nullptr);

    bool passes() const { return m_passes; }
    void setPasses(bool passes);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void describe();

    QString m_level;
    bool m_passes = false;
};

} // namespace lumora
