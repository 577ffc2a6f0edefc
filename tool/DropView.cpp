// SPDX-License-Identifier: MIT
#include "DropView.h"

#include "foundation/Log.h"
#include "tool/services/LocalFiles.h"
#include "widgets/style/AccessibleRole.h"

#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

DragOperations operationsOf(const QDropEvent *event)
{
    static const DragProtocol protocol =
        QGuiApplication::platformName().startsWith(u"wayland"_s) ? DragProtocol::WithoutLinks : DragProtocol::WithLinks;
    return sourceOperations(event->possibleActions(), protocol);
}

/// The toolkit's action for the operation, for the answer to the source.
Qt::DropAction actionFor(DragOperation operation, Qt::DropActions offered)
{
    switch (operation) {
    case DragOperation::None:
        return Qt::IgnoreAction;
    case DragOperation::Link:
        return offered.testFlag(Qt::LinkAction) ? Qt::LinkAction : Qt::CopyAction;
    case DragOperation::Copy:
    case DragOperation::Generic:
        break;
    }
    return offered.testFlag(Qt::CopyAction) ? Qt::CopyAction : Qt::LinkAction;
}

} // namespace

DragOperations sourceOperations(Qt::DropActions offered, DragProtocol protocol)
{
    DragOperations mask;
    mask.setFlag(DragOperation::Copy, offered.testFlag(Qt::CopyAction));
    const bool leavesChoice = protocol == DragProtocol::WithoutLinks || offered.testFlag(Qt::MoveAction);
    mask.setFlag(DragOperation::Link,
                 offered.testFlag(Qt::LinkAction) || (leavesChoice && offered.testFlag(Qt::CopyAction)));
    mask.setFlag(DragOperation::Generic, offered != Qt::IgnoreAction);
    return mask;
}

DragContent DragContent::of(const QMimeData &mimeData)
{
    const QList<QUrl> urls = mimeData.urls();
    const bool onlyRemote = !urls.isEmpty() && localFiles(urls).isEmpty();
    return {mimeData.hasColor(), mimeData.hasUrls() && !onlyRemote};
}

DropView::DropView(QWidget *parent) : QWidget(parent)
{
    initialize();
}

void DropView::initialize()
{
    setAcceptDrops(true);
    setAccessibleRole(this, QAccessible::Grouping);
}

DragOperation DropView::draggingEntered(DragContent content, DragOperations mask)
{
    if (content.color && mask.testFlag(DragOperation::Generic))
        return DragOperation::Generic;
    if (content.files) {
        if (mask.testFlag(DragOperation::Link))
            return DragOperation::Link;
        if (mask.testFlag(DragOperation::Copy))
            return DragOperation::Copy;
    }
    return DragOperation::None;
}

bool DropView::performDragOperation(const QMimeData &mimeData, DragOperations mask)
{
    const DragContent content = DragContent::of(mimeData);
    if (content.color) {
        if (m_delegate != nullptr)
            m_delegate->dropViewReceivedColor(qvariant_cast<QColor>(mimeData.colorData()));
    } else if (content.files) {
        if (!mask.testFlag(DragOperation::Link))
            logLine(u"Error - Copied?!"_s);
        else if (m_delegate != nullptr)
            m_delegate->dropViewReceivedFiles(localFiles(mimeData.urls()));
    }
    return true;
}

void DropView::dragEnterEvent(QDragEnterEvent *event)
{
    judge(event);
}

void DropView::dragMoveEvent(QDragMoveEvent *event)
{
    judge(event);
}

void DropView::dragLeaveEvent(QDragLeaveEvent *)
{
    setTargeted(false);
}

bool DropView::isRegisteredFor(const QMimeData &mimeData) const
{
    return mimeData.hasUrls() || m_takesColors;
}

void DropView::dropEvent(QDropEvent *event)
{
    receive(event);
}

void DropView::receive(QDropEvent *event)
{
    setTargeted(false);
    if (!isRegisteredFor(*event->mimeData())) {
        event->ignore();
        return;
    }
    const DragOperations mask = operationsOf(event);
    const DragOperation operation = draggingEntered(DragContent::of(*event->mimeData()), mask);
    event->setDropAction(actionFor(operation, event->possibleActions()));
    event->setAccepted(performDragOperation(*event->mimeData(), mask));
}

void DropView::judge(QDropEvent *event)
{
    const DragOperation operation = isRegisteredFor(*event->mimeData())
                                        ? draggingEntered(DragContent::of(*event->mimeData()), operationsOf(event))
                                        : DragOperation::None;
    event->setDropAction(actionFor(operation, event->possibleActions()));
    event->setAccepted(operation != DragOperation::None);
    // A mere copy is shown to the source, but would not be delivered.
    setTargeted(operation == DragOperation::Link || operation == DragOperation::Generic);
}

void DropView::setTargeted(bool targeted)
{
    if (m_targeted == targeted)
        return;
    m_targeted = targeted;
    emit targetedChanged(targeted);
}

} // namespace lumora
