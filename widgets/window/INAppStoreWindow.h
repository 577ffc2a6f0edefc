// SPDX-License-Identifier: MIT
#pragma once

#include "DoubleClickPreference.h"
#include "INAppStoreWindowDelegateProxy.h"

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QPointer>
#include <QWidget>

#include <array>
#include <functional>
#include <memory>
#include <optional>

class QAbstractButton;
class QPainter;
class QScreen;
class QVariantAnimation;

namespace lumora
{

class INTitlebarContainer;
class INWindowButton;
class WindowEdge;

/// A hard shadow of a text; `offset` is in points, y down.
struct TextShadow
{
    QColor color;
    QPointF offset;

    bool operator==(const TextShadow &) const = default;
};

/// A top-level window that draws its own title bar, of any height and with custom views, and with the close, minimize,
/// zoom and full-screen buttons inside it. The user drags it by the title bar and resizes it at its edges; a line along
/// its edges sets it off from a white window behind it.
///
/// Its settings are part of the kit's public face: the program uses some of them, the gallery and the tests all.
///
/// The widget is the whole window: title bar, content and outline. It has no margin, so its geometry is what the user
/// sees. Its base coordinates count y upwards from its lower left corner.
class INAppStoreWindow : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(qreal titleBarHeight READ titleBarHeight WRITE setTitleBarHeight)
    Q_PROPERTY(bool showsTitle READ showsTitle WRITE setShowsTitle)

public:
    enum StyleMaskFlag { Borderless = 0, Titled = 1, Closable = 2, Miniaturizable = 4, Resizable = 8, FullScreen = 16 };
    Q_DECLARE_FLAGS(StyleMask, StyleMaskFlag)
    static constexpr StyleMask standardStyleMask{Titled | Closable | Miniaturizable | Resizable};

    /// Draws the whole title bar. The rectangle and the path, which has round upper corners, are in the title bar
    /// view's coordinates, y down.
    using TitleBarDrawingBlock = std::function<void(QPainter *painter, bool drawsAsMainWindow,
                                                    const QRectF &drawingRect, const QPainterPath &clippingPath)>;

    explicit INAppStoreWindow(QWidget *parent = nullptr);
    /// The content rectangle is in screen coordinates, y upwards; a title bar of standard height is added above it.
    explicit INAppStoreWindow(const QRectF &contentRect, StyleMask styleMask = standardStyleMask,
                              QScreen *screen = nullptr);
    ~INAppStoreWindow() override;

    /// In points. A height below the standard one is raised to it.
    qreal titleBarHeight() const { return m_titleBarHeight; }
    void setTitleBarHeight(qreal height);
    /// The height of a plain title bar, measured once for all windows.
    static qreal minimumTitleBarHeight();
    /// The view that fills the title bar below the buttons; custom content becomes its children. A null view restores
    /// the standard one.
    QWidget *titleBarView() const { return m_titleBarView; }
    void setTitleBarView(QWidget *view);
    /// The view that fills the window below the title bar. The window owns it and deletes the previous one.
    QWidget *contentView() const { return m_contentView; }
    void setContentView(QWidget *view);

    bool showsBaselineSeparator() const { return m_showsBaselineSeparator; }
    void setShowsBaselineSeparator(bool shows);
    qreal trafficLightButtonsLeftMargin() const { return m_trafficLightButtonsLeftMargin; }
    void setTrafficLightButtonsLeftMargin(qreal margin);
    qreal trafficLightButtonsTopMargin() const { return m_trafficLightButtonsTopMargin; }
    void setTrafficLightButtonsTopMargin(qreal margin);
    qreal trafficLightSeparation() const { return m_trafficLightSeparation; }
    void setTrafficLightSeparation(qreal separation);
    bool centerTrafficLightButtons() const { return m_centerTrafficLightButtons; }
    void setCenterTrafficLightButtons(bool center);
    bool verticalTrafficLightButtons() const { return m_verticalTrafficLightButtons; }
    void setVerticalTrafficLightButtons(bool vertical);
    qreal fullScreenButtonRightMargin() const;
    void setFullScreenButtonRightMargin(qreal margin);
    qreal fullScreenButtonTopMargin() const { return m_fullScreenButtonTopMargin; }
    void setFullScreenButtonTopMargin(qreal margin);
    bool centerFullScreenButton() const { return m_centerFullScreenButton; }
    void setCenterFullScreenButton(bool center);
    bool hideTitleBarInFullScreen() const { return m_hideTitleBarInFullScreen; }
    void setHideTitleBarInFullScreen(bool hide);

    bool showsTitle() const { return m_showsTitle; }
    void setShowsTitle(bool shows);
    bool showsTitleInFullscreen() const { return m_showsTitleInFullscreen; }
    void setShowsTitleInFullscreen(bool shows);
    bool verticallyCenterTitle() const { return m_verticallyCenterTitle; }
    void setVerticallyCenterTitle(bool center);
    QFont titleFont() const { return m_titleFont; }
    void setTitleFont(const QFont &font);
    QColor titleTextColor() const { return m_titleTextColor; }
    void setTitleTextColor(const QColor &color);
    const std::optional<TextShadow> &titleTextShadow() const { return m_titleTextShadow; }
    void setTitleTextShadow(const std::optional<TextShadow> &shadow);
    QColor inactiveTitleTextColor() const { return m_inactiveTitleTextColor; }
    void setInactiveTitleTextColor(const QColor &color);
    const std::optional<TextShadow> &inactiveTitleTextShadow() const { return m_inactiveTitleTextShadow; }
    void setInactiveTitleTextShadow(const std::optional<TextShadow> &shadow);

    /// An invalid color, the default of all of them, means the built-in gray.
    QColor titleBarStartColor() const { return m_titleBarStartColor; }
    void setTitleBarStartColor(const QColor &color);
    QColor titleBarEndColor() const { return m_titleBarEndColor; }
    void setTitleBarEndColor(const QColor &color);
    QColor inactiveTitleBarStartColor() const { return m_inactiveTitleBarStartColor; }
    void setInactiveTitleBarStartColor(const QColor &color);
    QColor inactiveTitleBarEndColor() const { return m_inactiveTitleBarEndColor; }
    void setInactiveTitleBarEndColor(const QColor &color);
    QColor baselineSeparatorColor() const { return m_baselineSeparatorColor; }
    void setBaselineSeparatorColor(const QColor &color);
    QColor inactiveBaselineSeparatorColor() const { return m_inactiveBaselineSeparatorColor; }
    void setInactiveBaselineSeparatorColor(const QColor &color);
    /// Replaces the built-in drawing when set.
    const TitleBarDrawingBlock &titleBarDrawingBlock() const { return m_titleBarDrawingBlock; }
    void setTitleBarDrawingBlock(const TitleBarDrawingBlock &block);

    /// The caller's own button; null while the standard one is used. The window owns it.
    QAbstractButton *closeButton() const { return m_userButtons[Close]; }
    void setCloseButton(QAbstractButton *button);
    QAbstractButton *minimizeButton() const { return m_userButtons[Minimize]; }
    void setMinimizeButton(QAbstractButton *button);
    QAbstractButton *zoomButton() const { return m_userButtons[Zoom]; }
    void setZoomButton(QAbstractButton *button);
    QAbstractButton *fullScreenButton() const { return m_userButtons[EnterFullScreen]; }
    void setFullScreenButton(QAbstractButton *button);

    QString title() const { return windowTitle(); }
    void setTitle(const QString &title);
    /// The sizes of a whole window with a title bar of standard height; the window adds the extra height of a taller
    /// one.
    void setMinSize(const QSizeF &size);
    void setMaxSize(const QSizeF &size);
    /// The abilities of the window. Full screen is one of them while it lasts; do not set it by hand.
    StyleMask styleMask() const;
    void setStyleMask(StyleMask mask);
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);
    /// The window's frame on screen, in points, y upwards.
    QRectF frame() const;
    void setFrame(const QRectF &frame, bool display = true, bool animate = false);

    /// Not owned. It is notified of everything after the window has done its own work.
    INAppStoreWindowDelegate *delegate() const { return m_delegateProxy.secondaryDelegate(); }
    void setDelegate(INAppStoreWindowDelegate *delegate);

    /// Whether the window has the keyboard.
    bool isKeyWindow() const { return m_isKey; }
    /// Whether the window, one of its popovers or one of its dialogs has the keyboard.
    bool isMainWindow() const { return m_isMain; }

    const DoubleClickPreference *doubleClickPreference() const { return m_doubleClickPreference.get(); }
    void setDoubleClickPreference(std::shared_ptr<const DoubleClickPreference> preference);

    /// The rectangle of a title of the size, in the title bar's coordinates, y down.
    QRectF titleFrame(const QSizeF &text) const;

public slots:
    void performClose();
    void miniaturize();
    /// Toggles between the largest size on the screen and the previous size.
    void performZoom();
    void toggleFullScreen();
    /// The menu with the actions of the title bar's buttons, for the keyboard. Alt+Space opens it; desktops that have
    /// such a menu of their own take that key themselves.
    void showWindowMenu();

protected:
    void becomeKeyWindow();
    void resignKeyWindow();
    void becomeMainWindow();
    void resignMainWindow();

    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    enum ButtonKind : size_t { Close, Minimize, Zoom, EnterFullScreen };

    template <typename Value> void change(Value &value, const Value &to);
    void doInitialWindowSetup();
    void createTitlebarView();
    void createButtons();
    void setButton(ButtonKind kind, QAbstractButton *button);
    void pressed(ButtonKind kind);
    QAbstractButton *button(ButtonKind kind) const;
    void nameButtons();
    void enableButtons();
    void layoutTrafficLightsAndContent();
    void redisplay();
    void applySizeLimits();
    void updateKeyAndMain();
    void windowStateChanged(Qt::WindowStates before);
    void windowWillEnterFullScreen();
    void windowWillExitFullScreen();
    void windowDidExitFullScreen();
    void keepReachable();
    bool hidesTitleBar() const;

    INAppStoreWindowDelegateProxy m_delegateProxy;
    std::shared_ptr<const DoubleClickPreference> m_doubleClickPreference;
    INTitlebarContainer *m_titleBarContainer = nullptr;
    QPointer<QWidget> m_titleBarView;
    QPointer<QWidget> m_contentView;
    std::array<INWindowButton *, 4> m_standardButtons{};
    std::array<QPointer<QAbstractButton>, 4> m_userButtons;
    std::array<WindowEdge *, 4> m_edges{};
    QVariantAnimation *m_frameAnimation = nullptr;
    StyleMask m_styleMask = standardStyleMask;
    std::optional<QSizeF> m_minSize;
    std::optional<QSizeF> m_maxSize;
    bool m_isKey = false;
    bool m_isMain = false;
    bool m_wasMaximized = false;

    qreal m_titleBarHeight = 0;
    bool m_showsBaselineSeparator = true;
    qreal m_trafficLightButtonsLeftMargin = 0;
    qreal m_trafficLightButtonsTopMargin = 0;
    qreal m_trafficLightSeparation = 0;
    bool m_centerTrafficLightButtons = true;
    bool m_verticalTrafficLightButtons = false;
    std::optional<qreal> m_fullScreenButtonRightMargin;
    qreal m_fullScreenButtonTopMargin = 0;
    bool m_centerFullScreenButton = true;
    bool m_hideTitleBarInFullScreen = false;
    bool m_showsTitle = false;
    bool m_showsTitleInFullscreen = false;
    bool m_verticallyCenterTitle = false;
    QFont m_titleFont;
    QColor m_titleTextColor;
    std::optional<TextShadow> m_titleTextShadow;
    QColor m_inactiveTitleTextColor;
    std::optional<TextShadow> m_inactiveTitleTextShadow;
    QColor m_titleBarStartColor;
    QColor m_titleBarEndColor;
    QColor m_inactiveTitleBarStartColor;
    QColor m_inactiveTitleBarEndColor;
    QColor m_baselineSeparatorColor;
    QColor m_inactiveBaselineSeparatorColor;
    TitleBarDrawingBlock m_titleBarDrawingBlock;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(INAppStoreWindow::StyleMask)

} // namespace lumora
