// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

#include <memory>

class QLabel;

namespace Ui
{
class AlertContentView;
}

namespace lumora
{

class IconButton;

/// Is called when the message is to be closed; optional.
class AlertContentViewDelegate
{
public:
    virtual ~AlertContentViewDelegate() = default;

    virtual void popupCloseButtonPressed() {}
};

/// The content of a tool's message popup: a title, a message and a button that closes it. Its size is always that of
/// its interface file.
class AlertContentView final : public QWidget
{
    Q_OBJECT

public:
    explicit AlertContentView(QWidget *parent = nullptr);
    ~AlertContentView() override;

    AlertContentViewDelegate *delegate() const { return m_delegate; }
    /// Not owned; must outlive the view, or be removed by setting nullptr.
    void setDelegate(AlertContentViewDelegate *delegate) { m_delegate = delegate; }

    QLabel *titleLabel() const;
    QLabel *messageLabel() const;
    IconButton *closeButton() const;

    void setTitle(const QString &title, const QString &andMessage);
    /// The close button at rest and under the mouse.
    void setLightColor(const QColor &lightColor, const QColor &andDarkColor);

public slots:
    void closeButtonClicked();

private:
    void awakeFromNib();

    std::unique_ptr<Ui::AlertContentView> m_ui;
    AlertContentViewDelegate *m_delegate = nullptr;
};

} // namespace lumora
