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

    /// Hands the address to the application that the desktop prefers for its scheme. An address that is none (a text
    /// that is missing from the table yields one) is let go without a word.
    virtual void open(const QUrl &url) = 0;
    /// The name of that application as the desktop knows it ("thunderbird.desktop"), empty where it names none.
    virtual QString applicationFor(const QUrl &url) const = 0;
};

/// Opens addresses through the desktop.
class DesktopUrlOpener final : public UrlOpener
{
public:
    void open(const QUrl &url) override;
    QString applicationFor(const QUrl &url) const override;
};

/// The first desktop entry that one of the lists (contents of `mimeapps.list` files, most important first) gives as
/// the default for the type; empty where none does.
QString defaultApplication(const QStringList &mimeAppsFiles, const QString &mimeType);

} // namespace lumora
