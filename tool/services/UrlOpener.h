// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

namespace lumora
{

/// Opens web and mail addresses outside the program.
class UrlOpener
{
public:
    virtual ~UrlOpener() = default;

    /// Opens the address with the application that the desktop prefers for its scheme. Ignores an invalid address,
    /// which results from a missing text.
    virtual void open(const QUrl &url) = 0;
    /// The desktop's name of that application ("thunderbird.desktop"); empty if it has none.
    virtual QString applicationFor(const QUrl &url) const = 0;
};

/// Opens addresses through the desktop.
class DesktopUrlOpener final : public UrlOpener
{
public:
    void open(const QUrl &url) override;
    QString applicationFor(const QUrl &url) const override;
};

/// The first desktop entry in the lists (contents of `mimeapps.list` files, most important first) that is the default
/// for the type; empty if there is none.
QString defaultApplication(const QStringList &mimeAppsFiles, const QString &mimeType);

} // namespace lumora
