// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QStringList>
#include <QWidget>

class QMimeData;

namespace lumora
{

/// The operations that a drag's source allows, one bit each.
enum class DragOperation : quint32 {
    None = 0,
    Copy = 1,
    Link = 2,
    Generic = 4, ///< the receiver decides
};
Q_DECLARE_FLAGS(DragOperations, DragOperation)
Q_DECLARE_OPERATORS_FOR_FLAGS(DragOperations)

/// Whether the protocol between the programs has a link operation. X11's has one; Wayland's has none, so no source can
/// offer it.
enum class DragProtocol { WithLinks, WithoutLinks };

/// The source's operations as the drop view understands them: copy and link as offered, generic for any drag with an
/// operation. A source that offers both copying and moving lets the receiver decide, so linking is allowed, too. If the
/// protocol has no links, offering to copy is enough for that.
DragOperations sourceOperations(Qt::DropActions offered, DragProtocol protocol);

/// The contents of a drag that a drop view can accept.
struct DragContent
{
    bool color = false; ///< a color
    bool files = false; ///< a list of local files, possibly empty

    static DragContent of(const QMimeData &mimeData);
};

/// Receives what is dropped on a drop view; both operations are optional.
class DropViewDelegate
{
public:
    virtual ~DropViewDelegate() = default;

    /// Absolute paths in the order of the drag, of any kind and number.
    virtual void dropViewReceivedFiles(const QStringList &files) { Q_UNUSED(files) }
    virtual void dropViewReceivedColor(const QColor &color) { Q_UNUSED(color) }
};

/// The area of a pane on which files are dropped. It draws nothing itself; a DropHighlight on it shows whether it will
/// accept the drop.
class DropView final : public QWidget
{
    Q_OBJECT

public:
    explicit DropView(QWidget *parent = nullptr);

    DropViewDelegate *delegate() const { return m_delegate; }
    /// The delegate is not owned; it must outlive the view, or be removed by setting nullptr.
    void setDelegate(DropViewDelegate *delegate) { m_delegate = delegate; }

    /// Whether a color without files is accepted; false at first.
    void setTakesColors(bool takes) { m_takesColors = takes; }

    /// Whether a drag that would be delivered is over the view. Whether a drop elsewhere in the window also goes to the
    /// view while it is hidden; false at first.
    bool takesWhileHidden() const { return m_takesWhileHidden; }
    void setTakesWhileHidden(bool takes) { m_takesWhileHidden = takes; }

    bool isTargeted() const { return m_targeted; }

    /// The operation to show for a drag that enters: generic for a color if the source allows it, else link or copy for
    /// files, else none.
    static DragOperation draggingEntered(DragContent content, DragOperations mask);
    /// Delivers the drop to the delegate: a color first, files only if the source allows linking (else it logs "Error -
    /// Copied?!"). Always returns true.
    bool performDragOperation(const QMimeData &mimeData, DragOperations mask);

    /// Handle a drag over the view and a drop, including events that another widget passes on to it.
    void judge(QDropEvent *event);
    void forget() { setTargeted(false); }
    /// Call this for a drag over the view that the view's owner takes itself.
    void target() { setTargeted(true); }
    void receive(QDropEvent *event);

signals:
    void targetedChanged(bool targeted);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void initialize();
    /// Whether the view accepts this kind of drag.
    bool isRegisteredFor(const QMimeData &mimeData) const;
    void setTargeted(bool targeted);

    DropViewDelegate *m_delegate = nullptr;
    bool m_targeted = false;
    bool m_takesColors = false;
    bool m_takesWhileHidden = false;
};

} // namespace lumora
