// SPDX-License-Identifier: MIT
#pragma once

#include "tool/services/Services.h"

#include <QWidget>

#include <memory>

namespace Ui
{
class AboutPopupContentView;
}

namespace lumora
{

/// The about panel: the application, its version and maker, and three ways to contact the maker.
class AboutPopupContentView final : public QWidget
{
    Q_OBJECT

public:
    /// Shows the version of the running application.
    explicit AboutPopupContentView(UrlOpener &urlOpener, QWidget *parent = nullptr);
    ~AboutPopupContentView() override;

    const Ui::AboutPopupContentView &outlets() const { return *m_ui; }

public slots:
    void twitterClicked();
    void facebookClicked();
    void mailClicked();

private:
    void awakeFromNib();
    void openAddress(const QString &address);

    std::unique_ptr<Ui::AboutPopupContentView> m_ui;
    UrlOpener &m_urlOpener;
};

} // namespace lumora
