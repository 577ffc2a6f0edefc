// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QLabel;

namespace lumora
{

class SizeChips;

/// Is below a check's box and shows why the check failed: a sentence, and the missing sizes. Takes no space while it is
/// empty.
class ReasonView final : public QWidget
{
    Q_OBJECT

public:
    explicit ReasonView(QWidget *parent = nullptr);

    QString reason() const;
    const QStringList &sizes() const;
    void setReason(const QString &reason, const QStringList &sizes);

private:
    QLabel *m_label;
    SizeChips *m_chips;
};

} // namespace lumora
