// SPDX-License-Identifier: MIT
#pragma once

#include "AlertContentView.h"
#include "tool/services/Services.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace lumora
{

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

    /// Points a message at the control: green for what went well, red for what did not. While a message stands, showing
    /// another hides it; the new texts and colours are those of the next showing. The control has to sit two levels
    /// below the tool's root view.
    void showPopupWithTitle(const QString &title, const QString &message, QWidget *fromView, bool isError);
    void popupCloseButtonPressed() override;

    /// Whether the tool opens files, and so has a use for the two operations below.
    virtual bool takesFiles() const { return false; }
    /// Lets the user choose what the tool works on, as the tool's own browse button does.
    virtual void browseButtonPressed() {}
    /// Whether what is on the clipboard can be of use to the tool.
    virtual bool takesClipboard() const { return takesFiles(); }
    /// Takes what is on the clipboard (files, a picture, a colour), as if it were dropped on the tool.
    virtual void paste() {}

protected:
    explicit ToolViewController(const Services &services, QObject *parent = nullptr);

    const Services &services() const { return m_services; }
    /// Makes the message popup; once.
    void createPopup();

private:
    Services m_services;
    QPointer<QWidget> m_view;
    QPointer<QWidget> m_window;
    AlertContentView *m_popupContentView = nullptr; ///< owned by the popover
    std::unique_ptr<SFBPopover> m_popupView;
};

} // namespace lumora
