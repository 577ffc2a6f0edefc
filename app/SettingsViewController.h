// SPDX-License-Identifier: MIT
#pragma once

#include "tool/services/Services.h"
#include "tool/style/StyledText.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace Ui
{
class SettingsViewController;
}

namespace lumora
{

/// The maker's addresses in the contact panel.
struct ContactDetails
{
    QString mail;
    QString twitter;
    QString facebook;
};

/// The contact panel's text: the first line, then the second with "[MAIL]", "[TWITTER]" and "[FACEBOOK]" replaced. The
/// first line and the first occurrence of each value are bold.
StyledText contactText(const QString &firstLine, const QString &secondLine, const ContactDetails &details);

/// The panel with the application's icon, its version and two ways to contact the maker. A host shows its view; the
/// window has no such host yet, so only the tests use it.
class SettingsViewController final : public QObject
{
    Q_OBJECT

public:
    explicit SettingsViewController(const Services &services, QObject *parent = nullptr);
    ~SettingsViewController() override;

    /// Owned by the controller.
    QWidget *view() const { return m_view; }
    const Ui::SettingsViewController &outlets() const { return *m_ui; }

public slots:
    void contactMailButtonPressed();
    void contactTwitterButtonPressed();

private:
    void awakeFromNib();

    Services m_services;
    QPointer<QWidget> m_view;
    std::unique_ptr<Ui::SettingsViewController> m_ui;
};

} // namespace lumora
