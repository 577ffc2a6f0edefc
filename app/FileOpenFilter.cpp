// SPDX-License-Identifier: MIT
#include "FileOpenFilter.h"

#include "AppDelegate.h"

#include <QFileOpenEvent>

namespace lumora
{

FileOpenFilter::FileOpenFilter(AppDelegate &delegate, QObject *parent) : QObject(parent), m_delegate(delegate) {}

bool FileOpenFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::FileOpen)
        return QObject::eventFilter(watched, event);
    m_delegate.applicationOpenFiles({static_cast<QFileOpenEvent *>(event)->file()});
    return true;
}

} // namespace lumora
