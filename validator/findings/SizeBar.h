// SPDX-License-Identifier: MIT
#pragma once

#include "validator/review/PackageReview.h"

#include <QWidget>

namespace lumora
{

/// The sizes of a package's kinds of files as parts of one bar, and below it their names.
class SizeBar final : public QWidget
{
    Q_OBJECT

public:
    explicit SizeBar(QWidget *parent = nullptr);

    void setKinds(const QList<ReviewedKind> &kinds);
    /// "Code 1.2 MB, Pictures 0.4 MB": what the picture shows, the largest first.
    QString words() const;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Part
    {
        QString text;
        QColor color;
        qreal share = 0;
    };

    /// The places of the names in a view of that width, from left to right.
    QList<QRect> places(int width) const;

    QList<Part> m_parts;
};

} // namespace lumora
