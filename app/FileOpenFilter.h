// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace lumora
{

class AppDelegate;

/// Installed on the application, passes on the files that a desktop sends by its own event.
class FileOpenFilter final : public QObject
{
    Q_OBJECT

public:
    /// The delegate must outlive the filter.
    explicit FileOpenFilter(AppDelegate &delegate, QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    AppDelegate &m_delegate;
};

} // namespace lumora
