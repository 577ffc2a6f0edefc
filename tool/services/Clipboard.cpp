// SPDX-License-Identifier: MIT
#include "Clipboard.h"

#include "LocalFiles.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace lumora
{

void SystemClipboard::setText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

QStringList SystemClipboard::files() const
{
    const QMimeData *content = QGuiApplication::clipboard()->mimeData();
    return content == nullptr ? QStringList() : localFiles(content->urls());
}

QImage SystemClipboard::image() const
{
    return QGuiApplication::clipboard()->image();
}

QColor SystemClipboard::color() const
{
    const QMimeData *content = QGuiApplication::clipboard()->mimeData();
    return content != nullptr && content->hasColor() ? content->colorData().value<QColor>() : QColor();
}

QString SystemClipboard::plainText() const
{
    return QGuiApplication::clipboard()->text();
}

} // namespace lumora
