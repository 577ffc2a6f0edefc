// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/style/NamedImage.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>

namespace lumora
{

class IconButton;
class PopoverAlertView;
class SFBPopover;

/// The edge of a view at which a popover opens.
enum class RectEdge : int { MinX = 0, MinY = 1, MaxX = 2, MaxY = 3 };

/// A standard alert (title, message, icon, some buttons) shown as a popover on a view. One is on screen at a time: a
/// new alert replaces the one that is shown. Replaced alerts come back afterwards, the latest first. Made by `create`;
/// keeps itself alive while it shows or waits.
class PopoverAlert final : public QObject, public std::enable_shared_from_this<PopoverAlert>
{
    Q_OBJECT

public:
    /// The response of a pressed button: 1000 for the first, 1001 for the second and so on.
    using CompletionBlock = std::function<void(int response)>;

    static constexpr int firstButtonReturn = 1000;
    static constexpr int secondButtonReturn = 1001;
    static constexpr int thirdButtonReturn = 1002;

    static std::shared_ptr<PopoverAlert> create();
    ~PopoverAlert() override;

    QString messageText;     ///< the title
    QString informativeText; ///< the message
    QStringList buttonTitles;
    NamedImage icon;

    void runAsPopoverForView(QWidget *view, CompletionBlock withCompletionBlock);
    /// The edge is ignored: an alert always opens at the view's upper edge.
    void runAsPopoverForView(QWidget *view, RectEdge prefferedEdge, CompletionBlock withCompletionBlock);
    /// Responds for the pressed button, closes the popover and shows the alert that was replaced last.
    void stopSynchronousPopoverAlert(const IconButton *button);

    QWidget *targetView() const { return m_targetView; }
    SFBPopover *parentPopover() const { return m_parentPopover.get(); }
    /// In the order of the titles; empty before the alert has run.
    QList<IconButton *> buttons() const;

    /// The response for a button's position; a position that is already a response is returned unchanged.
    static int responseForButton(int index);
    /// Runs the alert that was replaced last, if one waits.
    static void checkForPreviouslyShownAlerts();
    /// The alert on screen, nullptr for none, and the number of those that wait.
    static PopoverAlert *currentAlert();
    static int queueLength();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    PopoverAlert() = default;

    /// Opens the popover if its view is visible.
    void showOnView();

    QPointer<QWidget> m_targetView;
    CompletionBlock m_completionBlock;
    QPointer<PopoverAlertView> m_view; ///< owned by the popover
    std::unique_ptr<SFBPopover> m_parentPopover;
};

} // namespace lumora
