// SPDX-License-Identifier: MIT
#pragma once

#include "FadingView.h"
#include "widgets/style/NamedImage.h"

namespace lumora
{

/// A device's picture.
class DevicePicture final : public FadingView
{
    Q_OBJECT

public:
    explicit DevicePicture(const NamedImage &image, QWidget *parent = nullptr);

    const NamedImage &image() const { return m_image; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    NamedImage m_image;
};

/// The model's label below a picture, centered.
class DeviceLabel final : public FadingView
{
    Q_OBJECT

public:
    explicit DeviceLabel(const QString &text, QWidget *parent = nullptr);

    const QString &text() const { return m_text; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
};

} // namespace lumora
