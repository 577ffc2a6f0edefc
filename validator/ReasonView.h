// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QLabel;

namespace lumora
{

class SizeChips;

/// Stands below a check's box and says why it failed: a sentence, and the sizes that are missing. Takes no room while
/// there is nothing to say.
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
