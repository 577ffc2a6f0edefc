// SPDX-License-Identifier: MIT
#pragma once

#include "tool/services/Services.h"
#include "widgets/style/NamedImage.h"

#include <QColor>
#include <QWidget>

#include <memory>

namespace Ui
{
class PopupContentView;
}

namespace lumora
{

/// The help for one tool: icon, title and text in the tool's color, and three ways to write to the maker.
class PopupContentView final : public QWidget
{
    Q_OBJECT

public:
    explicit PopupContentView(UrlOpener &urlOpener, QWidget *parent = nullptr);
    ~PopupContentView() override;

    const Ui::PopupContentView &outlets() const { return *m_ui; }

    void setTitle(const QString &title);
    void setText(const QString &text);
    void setIcon(const NamedImage &icon);
    /// The color of the title and both rules.
    void setColor(const QColor &color);

public slots:
    void bugreportClicked();
    void featurerequestClicked();
    void feedbackClicked();

private:
    void awakeFromNib();
    void openAddress(const QString &address);

    std::unique_ptr<Ui::PopupContentView> m_ui;
    UrlOpener &m_urlOpener;
};

} // namespace lumora
