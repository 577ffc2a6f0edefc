// SPDX-License-Identifier: MIT
#pragma once

#include "PickerMode.h"
#include "PickerModel.h"
#include "color/picking/RecentColors.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

namespace lumora
{

class BFIconTabBar;
class PickerContent;

/// The color picker of the whole program, and the floating window that is one of its two hosts. The other is the
/// popover, which borrows the content view; the window shows itself only with the content back in it.
class ColorPanel final : public QWidget
{
    Q_OBJECT

public:
    /// One mode of the picker in the panel's toolbar.
    struct ToolbarItem
    {
        PickerModeItem mode;
        /// Switches the panel to the mode.
        std::function<void(ColorPanel &)> action;
    };

    /// Made when it is first asked for, and gone with the application.
    static ColorPanel *sharedColorPanel();
    static bool sharedColorPanelExists();

    /// While the panel is disabled it does not show itself.
    static void disablePanel();
    static void enablePanel();
    static bool isPanelDisabled();
    /// "r: 52, g: 73, b: 94, a: 255" of the shared panel, for logs.
    static QString colorText();

    explicit ColorPanel(QWidget *parent = nullptr);
    ~ColorPanel() override;

    const RgbaColor &color() const { return m_model.color(); }
    void setColor(const RgbaColor &color);
    PickerModel *model() { return &m_model; }

    bool showsAlpha() const;
    void setShowsAlpha(bool shows);

    const QList<ToolbarItem> &toolbarItems() const { return m_toolbarItems; }
    QString selectedItemIdentifier() const;
    void setMode(PickerMode mode);
    PickerMode mode() const;

    /// The picker without its host. Null only while the application goes down.
    PickerContent *contentView() const;
    /// The content is in this window, not in a popover.
    bool hostsContentView() const;
    const RecentColors &recentColors() const { return m_recent; }
    /// Puts the color among the recent ones if it was picked since the program last set one.
    void rememberColor();

    /// Gives the window the frame with which its content lies exactly on the rectangle, in screen coordinates.
    void setContentRect(const QRect &rect);
    /// Takes the content view back from the popover and shows the window, unless the panel is disabled.
    void orderFront(QWidget *above = nullptr);
    /// Hides the window without a word to anybody.
    void orderOut();

signals:
    void colorChanged(const lumora::RgbaColor &color);
    void modeChanged(lumora::PickerMode mode);

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void takeBackContentView();
    void tabBarChangedSelection();
    void takePicked(const RgbaColor &color);

    PickerModel m_model;
    QList<ToolbarItem> m_toolbarItems;
    BFIconTabBar *m_toolbar = nullptr;
    QPointer<PickerContent> m_contentView;
    RecentColors m_recent;
    /// The recent colors as they were before the pick that is going on, while they are shown.
    std::optional<RecentColors> m_recentBefore;
    RgbaColor m_givenColor = m_model.color();
};

} // namespace lumora
