// SPDX-License-Identifier: MIT
#pragma once

#include "AlertContentView.h"
#include "tool/services/Services.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>

namespace lumora
{

class PaneFocus;
class SFBPopover;

/// What all tools' controllers share: a view made from the interface file named like the class, the services of the
/// desktop, and one message popup that points at the control concerned.
///
/// A tool's controller, in its constructor: `m_ui.setupUi(view())`, sets its fixed data and appearance, connects its
/// controls to its actions, and calls `createPopup()` last. Its row in app/ToolTable.h is all else that a tool takes.
class ToolViewController : public QObject, public AlertContentViewDelegate
{
    Q_OBJECT

public:
    ~ToolViewController() override;

    /// The tool's root view. The shell shows it in its window and hides it again; the controller owns it.
    QWidget *view() const { return m_view; }
    /// The window that the tool belongs to, also while another tool is in view; messages and sheets show on it.
    QWidget *window() const;
    void setWindow(QWidget *window) { m_window = window; }
    SFBPopover *popupView() const { return m_popupView.get(); }
    AlertContentView *popupContentView() const { return m_popupContentView; }

    /// Points a message at the control: green for what went well, red for what did not. While a message is open,
    /// showing another hides it; one that says something else is shown when the first has gone. While another tool is
    /// in view the message waits.
    void showPopupWithTitle(const QString &title, const QString &message, QWidget *fromView, bool isError);
    void popupCloseButtonPressed() override;

    /// Gives the keyboard to the tool's first control.
    void takeFocus();

    /// Whether the tool opens files, and so has a use for the two operations below.
    virtual bool takesFiles() const { return false; }
    /// Lets the user choose what the tool works on, as the tool's own browse button does.
    virtual void browseButtonPressed() {}
    /// Whether what is on the clipboard can be of use to the tool.
    virtual bool takesClipboard() const { return takesFiles(); }
    /// Takes what is on the clipboard (files, a picture, a color), as if it were dropped on the tool.
    virtual void paste() {}

signals:
    /// Another tool is in view now.
    void leftView();
    /// Something has ended, or is to be read, while another tool is in view.
    void attentionWanted();

protected:
    explicit ToolViewController(const Services &services, QObject *parent = nullptr);

    const Services &services() const { return m_services; }
    /// To be called when a job has ended.
    void jobEnded();
    /// Makes the message popup; once.
    void createPopup();
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// What a message says and where it points.
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
    AlertContentView *m_popupContentView = nullptr; ///< owned by the popover
    std::unique_ptr<SFBPopover> m_popupView;
    Message m_shownMessage;
    std::optional<Message> m_waitingMessage;
};

} // namespace lumora
