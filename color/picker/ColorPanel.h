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

/// The color picker of the whole program, and the floating window that is one of its two hosts. The other host is the
/// popover, which borrows the content view; the window is shown only when it has the content back.
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

    /// Made at the first call, and deleted with the application.
    static ColorPanel *sharedColorPanel();
    static bool sharedColorPanelExists();

    /// A disabled panel is never shown.
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

    /// The picker without its host. Null only while the application ends.
    PickerContent *contentView() const;
    /// Whether the content is in this window, not in a popover.
    bool hostsContentView() const;
    const RecentColors &recentColors() const { return m_recent; }
    /// Adds the color to the recent ones if it was picked after the program last set one.
    void rememberColor();

    /// Sets the window's frame so that its content is exactly at the rectangle, in screen coordinates.
    void setContentRect(const QRect &rect);
    /// Takes the content view back from the popover and shows the window, unless the panel is disabled.
    void orderFront(QWidget *above = nullptr);
    /// Hides the window without notifying anything.
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
    /// The recent colors before the current pick, while they are shown.
    std::optional<RecentColors> m_recentBefore;
    RgbaColor m_givenColor = m_model.color();
};

} // namespace lumora
