// SPDX-License-Identifier: MIT
#pragma once

#include "tool/StyledText.h"
#include "tool/services/Services.h"
#include "widgets/window/INAppStoreWindowDelegateProxy.h"

#include <QObject>
#include <QPointF>
#include <QRectF>

#include <memory>
#include <vector>

namespace Ui
{
class MainWindow;
}

namespace lumora
{

class AboutPopupContentView;
class ColorBand;
class DropRouter;
class HeaderView;
class INAppStoreWindow;
class ITSidebar;
class NamedImage;
class PopupContentView;
class SFBPopover;
class ToolViewController;

/// Where a header button's popup points, from the window's lower left corner, counting upwards; the button's frame is
/// in the title bar's coordinates, counting upwards too.
QPointF headerPopupAnchor(const QRectF &buttonFrame, qreal windowHeight, qreal titleBarHeight);

/// The application: one window with header and sidebar, the tools' controllers, and the help and about popups. The
/// current tool is the sidebar's selection. What the first frame does not show (the other tools, both popups) is made
/// one by one behind it, or as soon as it is needed.
class AppDelegate final : public QObject, public INAppStoreWindowDelegate
{
    Q_OBJECT

public:
    explicit AppDelegate(const Services &services, QObject *parent = nullptr);
    /// Waits for exports that run.
    ~AppDelegate() override;

    /// Builds the window, ready to be shown; once.
    void applicationDidFinishLaunching();
    /// Hands the first file to the tool that takes its kind; brings the window to the front in any case.
    void applicationOpenFiles(const QStringList &files);
    /// Brings the window to the front and answers false: there are no documents.
    bool applicationShouldOpenUntitledFile();

    INAppStoreWindow *window() const { return m_window.get(); }
    ITSidebar *sideBar() const { return m_sideBar; }
    QWidget *contentView() const;
    HeaderView *header() const { return m_header; }
    ColorBand *leftBorderView() const;
    SFBPopover *popupView();
    PopupContentView *popupContentView();
    SFBPopover *aboutPopupView();
    AboutPopupContentView *aboutPopupContentView();
    /// Of the tool at the place in the tool table; lives until the application quits.
    ToolViewController *controller(std::size_t index);
    /// Of the tool in view: the sidebar's selection, or the last one where that was cleared.
    ToolViewController *currentController() const { return m_currentController; }
    /// Its place in the tool table.
    std::size_t toolInView() const { return m_toolInView; }
    /// Nothing is left to be made: every tool and both popups are there.
    bool isComplete() const;

    /// The name the application goes by is bold, the first bar regular; the rest takes the label's font.
    static StyledText createAttributedStringForHeaderTitle(const QString &title);

    /// Shows a question with three buttons on the view: close, report, support.
    void showAlertWithTitle(const QString &title, const QString &andMessage, const NamedImage &andImage,
                            QWidget *fromView);

    void windowWillClose(INAppStoreWindow *window) override;

public slots:
    void sideBarItemClicked();
    /// Makes the tool at the sidebar's selected index the current one.
    void updateViewForIndex();
    /// Selects the tool by its name in the tool table; other names are ignored.
    void showTool(const QString &name);
    void infoButtonClicked(QWidget *sender);
    void iconButtonClicked(QWidget *sender);
    void aboutButtonClicked();
    void newFile();
    /// Brings the window to the front.
    void activate();

signals:
    void toolChanged();

protected:
    /// Waits for the window's first frame.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpWindow();
    void setUpHeader();
    void setUpSidebar();
    /// Makes one thing that the first frame did not need; again with the next turn of the event loop.
    void makeNext();
    std::unique_ptr<SFBPopover> makePopover(QWidget *content) const;
    void tellHelp();
    void togglePopup(SFBPopover *popup, SFBPopover *other, QWidget *sender);

    Services m_services;
    std::unique_ptr<INAppStoreWindow> m_window;
    std::unique_ptr<Ui::MainWindow> m_ui;
    HeaderView *m_header = nullptr;
    ITSidebar *m_sideBar = nullptr;
    PopupContentView *m_popupContentView = nullptr;           ///< owned by its popover
    AboutPopupContentView *m_aboutPopupContentView = nullptr; ///< owned by its popover
    std::unique_ptr<SFBPopover> m_popupView;                  ///< null until needed, as the other popover
    std::unique_ptr<SFBPopover> m_aboutPopupView;
    DropRouter *m_dropRouter = nullptr;
    std::size_t m_toolInView = 0;
    ToolViewController *m_currentController = nullptr;
    std::vector<std::unique_ptr<ToolViewController>> m_controllers; ///< null where not needed yet
};

} // namespace lumora
