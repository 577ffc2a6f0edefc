// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QStringList>
#include <QWidget>

class QMimeData;

namespace lumora
{

/// What a drag's source allows, one bit each.
enum class DragOperation : quint32 {
    None = 0,
    Copy = 1,
    Link = 2,
    Generic = 4, ///< whatever the receiver makes of it
};
Q_DECLARE_FLAGS(DragOperations, DragOperation)
Q_DECLARE_OPERATORS_FOR_FLAGS(DragOperations)

/// Whether the protocol between the programs has a link operation at all. X11's has one; Wayland's has none, so that
/// no source could ever offer it.
enum class DragProtocol { WithLinks, WithoutLinks };

/// The source's operations as the drop view judges them: copy and link as offered, generic for any drag that offers
/// something. A source that lets its files be copied or moved lets them be linked: it leaves to the receiver what
/// becomes of them. Where the protocol has no links, so does one that lets them be copied.
DragOperations sourceOperations(Qt::DropActions offered, DragProtocol protocol);

/// What a drag carries that a drop view can take.
struct DragContent
{
    bool color = false; ///< a color
    bool files = false; ///< a list of this machine's files, possibly empty

    static DragContent of(const QMimeData &mimeData);
};

/// Takes what a drop view receives; both operations are optional.
class DropViewDelegate
{
public:
    virtual ~DropViewDelegate() = default;

    /// Absolute paths in the order of the drag; neither kind nor number is filtered.
    virtual void dropViewReceivedFiles(const QStringList &files) { Q_UNUSED(files) }
    virtual void dropViewReceivedColor(const QColor &color) { Q_UNUSED(color) }
};

/// The area of a pane that files are dropped on. It draws nothing itself; a DropHighlight on it shows that it will take
/// the drop.
class DropView final : public QWidget
{
    Q_OBJECT

public:
    explicit DropView(QWidget *parent = nullptr);

    DropViewDelegate *delegate() const { return m_delegate; }
    /// The delegate is not owned; it has to outlive the view or take itself away by setting nullptr.
    void setDelegate(DropViewDelegate *delegate) { m_delegate = delegate; }

    /// Whether a color is taken that comes without files; false at first.
    void setTakesColors(bool takes) { m_takesColors = takes; }

    /// A drag that would be delivered is over the view.
    bool isTargeted() const { return m_targeted; }

    /// The operation to show for a drag that comes in: generic for a color where the source allows it, else link or
    /// copy for files, else none.
    static DragOperation draggingEntered(DragContent content, DragOperations mask);
    /// Delivers the drop to the delegate: a color first, files only where the source allows linking (else the line
    /// "Error - Copied?!" is logged). Answers true whatever came of it.
    bool performDragOperation(const QMimeData &mimeData, DragOperations mask);

    /// What the view does with a drag over it and with a drop, also one that came down on something else and is meant
    /// for it.
    void judge(QDropEvent *event);
    void forget() { setTargeted(false); }
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
    /// Whether the drag is one of the kinds that the view hears of.
    bool isRegisteredFor(const QMimeData &mimeData) const;
    void setTargeted(bool targeted);

    DropViewDelegate *m_delegate = nullptr;
    bool m_targeted = false;
    bool m_takesColors = false;
};

} // namespace lumora
