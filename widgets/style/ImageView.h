// SPDX-License-Identifier: MIT
#pragma once

#include "NamedImage.h"

#include <QWidget>

namespace lumora
{

/// Shows a named image in the middle, as large as fits in its own proportions. Give it an accessible name if the
/// picture says something that no text beside it says.
class ImageView final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString imageName READ imageName WRITE setImageName)

public:
    explicit ImageView(QWidget *parent = nullptr);

    const NamedImage &image() const { return m_image; }
    void setImage(const NamedImage &image);
    /// The image by its name, for interface files.
    QString imageName() const { return m_image.name(); }
    void setImageName(const QString &name) { setImage(NamedImage(name)); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    NamedImage m_image;
};

} // namespace lumora
