// SPDX-License-Identifier: MIT
#pragma once

#include "AlertContentView.h"
#include "PaneSides.h"
#include "tool/services/Services.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>

namespace lumora
{

class JobResultView;
class PaneFocus;
class SFBPopover;

/// The base of all tools' controllers: a view made from the interface file named like the class, the services of the
/// desktop, and one message popup that points at the control concerned.
///
/// A tool's controller, in its constructor: `m_ui.setupUi(view())`, sets its fixed data and appearance, connects its
/// controls to its actions, and calls `createPopup()` last. Its row in app/ToolTable.h is all else that a tool takes.
class ToolViewController : public QObject, public AlertContentViewDelegate
{
    Q_OBJECT

public:
    ~ToolViewController() override;

    /// The tool's root view. The shell shows and hides it in its window; the controller owns it.
    QWidget *view() const { return m_view; }
    /// The tool's window, also while another tool is in view; messages and sheets are shown on it.
    QWidget *window() const;
    void setWindow(QWidget *window) { m_window = window; }
    SFBPopover *popupView() const { return m_popupView.get(); }
    AlertContentView *popupContentView() const { return m_popupContentView; }

    /// Shows a message that points at the control: green for success, red for failure. While a message is open, showing
    /// another hides the first; a message with another text is then shown when the first has closed. While another tool
    /// is in view, the message waits.
    void showPopupWithTitle(const QString &title, const QString &message, QWidget *fromView, bool isError);
    void popupCloseButtonPressed() override;

    /// Gives the keyboard to the tool's first control.
    void takeFocus();

    /// The tool's two sides; null for a tool that has only the classic one.
    PaneSides *sides() const { return m_sides; }

    /// Whether the tool opens files, and so uses the two operations below.
    virtual bool takesFiles() const { return false; }
    /// Lets the user choose the tool's input, as the tool's own browse button does.
    virtual void browseButtonPressed() {}
    /// Whether the tool can use the clipboard's contents.
    virtual bool takesClipboard() const { return takesFiles(); }
    /// Takes the clipboard's contents (files, a picture, a color) as if they were dropped on the tool.
    virtual void paste() {}

signals:
    /// Another tool is in view now.
    void leftView();
    /// A job has ended, or a message waits, while another tool is in view.
    void attentionWanted();

protected:
    explicit ToolViewController(const Services &services, QObject *parent = nullptr);

    const Services &services() const { return m_services; }
    /// Gives the tool a side of today beside the classic one, and its view the switch between them. Call it once, when
    /// the classic side is complete.
    void addToday(PaneSides::MakeToday makeToday);
    /// Call this when a job has ended.
    void jobEnded();
    /// Sets the view's colors and connects its buttons to the services.
    void setUpResult(JobResultView *view, const QColor &normal, const QColor &hover);
    /// Makes the message popup. Call it once.
    void createPopup();
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The text of a message and the control that it points at.
    struct Message
    {
        QString title;
        QString text;
        QPointer<QWidget> control;
        bool isError = false;

        bool operator==(const Message &) const = default;
    };

    void display(const Message &message);
    void displayWaiting();
    bool isBlocked() const;

    Services m_services;
    QPointer<QWidget> m_view;
    QPointer<QWidget> m_window;
    PaneFocus *m_focus;                             ///< owned by the view
    PaneSides *m_sides = nullptr;                   ///< owned by the view
    AlertContentView *m_popupContentView = nullptr; ///< owned by the popover
    std::unique_ptr<SFBPopover> m_popupView;
    Message m_shownMessage;
    std::optional<Message> m_waitingMessage;
};

} // namespace lumora
