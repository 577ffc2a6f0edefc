// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDialog>

namespace lumora
{

/// A file dialog on the window that deletes itself when it closes. If it is not the desktop's own, it is wide enough
/// for names beside sizes and dates.
QFileDialog *makeFileDialog(QWidget *window, const QString &title, const QString &startFolder);

} // namespace lumora
