// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

#include <memory>

class QLabel;
class QScrollArea;

namespace Ui
{
class ValidatePopupContentView;
}

namespace lumora
{

class IconButton;

/// The content of the validator's own popup: a title, an explanation of any length and a button that closes it. It is
/// as high as its text, up to `largestHeight`; a longer text scrolls.
class ValidatePopupContentView final : public QWidget
{
    Q_OBJECT

public:
    static constexpr int largestHeight = 360;

    explicit ValidatePopupContentView(QWidget *parent = nullptr);
    ~ValidatePopupContentView() override;

    QLabel *titleLabel() const;
    QLabel *messageLabel() const;
    QScrollArea *scrollArea() const;
    IconButton *closeButton() const;

    void setTitle(const QString &title, const QString &andMessage);
    /// The close button at rest and under the mouse.
    void setLightColor(const QColor &lightColor, const QColor &andDarkColor);
    /// Adapts the height to the text, and shows its beginning.
    void fitToText();

signals:
    void closeButtonPressed();

private:
    std::unique_ptr<Ui::ValidatePopupContentView> m_ui;
};

} // namespace lumora
