// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDialog>

namespace lumora
{

/// A file dialog on the window that deletes itself when it closes; wide enough for names beside sizes and dates, where
/// it is not the desktop's own.
QFileDialog *makeFileDialog(QWidget *window, const QString &title, const QString &startFolder);

} // namespace lumora
