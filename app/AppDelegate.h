// SPDX-License-Identifier: MIT
#pragma once

#include "tool/services/Services.h"
#include "tool/style/StyledText.h"
#include "widgets/window/INAppStoreWindowDelegateProxy.h"

#include <QObject>

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
enum class ToolSide;

/// The application: one window with header and sidebar, the tools' controllers, and the help and about popups. The
/// current tool is the sidebar's selection. The parts that the first frame does not show (the other tools, both popups)
/// are made one by one after it, or as soon as they are needed.
class AppDelegate final : public QObject, public INAppStoreWindowDelegate
{
    Q_OBJECT

public:
    explicit AppDelegate(const Services &services, QObject *parent = nullptr);
    /// Waits for running exports.
    ~AppDelegate() override;

    /// Builds the window, ready to be shown. Call it once.
    void applicationDidFinishLaunching();
    /// Passes the first file to the tool for its kind, and always brings the window to the front.
    void applicationOpenFiles(const QStringList &files);
    /// Brings the window to the front and returns false: there are no documents.
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
    /// The controller of the tool at the index of the tool table; lives until the application quits.
    ToolViewController *controller(std::size_t index);
    /// The controller of the tool in view: the sidebar's selection, or the last one if that was cleared.
    ToolViewController *currentController() const { return m_currentController; }
    /// Its index in the tool table.
    std::size_t toolInView() const { return m_toolInView; }
    /// Whether every tool and both popups are made.
    bool isComplete() const;

    /// The application's name is bold, the first bar regular; the rest has the label's font.
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
    /// Shows this side of every tool that has it.
    void showSide(lumora::ToolSide side);
    void infoButtonClicked(QWidget *sender);
    void iconButtonClicked(QWidget *sender);
    void aboutButtonClicked();
    void newFile() { activate(); }
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
    /// Makes one part that the first frame did not need, then continues in the next turn of the event loop.
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
    std::unique_ptr<SFBPopover> m_popupView;                  ///< null until needed, like the other popover
    std::unique_ptr<SFBPopover> m_aboutPopupView;
    DropRouter *m_dropRouter = nullptr;
    std::size_t m_toolInView = 0;
    ToolViewController *m_currentController = nullptr;
    std::vector<std::unique_ptr<ToolViewController>> m_controllers; ///< null where not needed yet
    ToolSide m_firstSide{};                                         ///< the side of controllers that are made later
};

} // namespace lumora
