// SPDX-License-Identifier: MIT
#include "TitleBarPage.h"

#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"
#include "widgets/window/INAppStoreWindow.h"
#include "widgets/window/INWindowButton.h"
#include "widgets/window/INWindowButtonGroup.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>

#include <functional>

using namespace Qt::StringLiterals;

namespace lumora::gallery
{

namespace
{

constexpr int barWidth = 300;
constexpr int contentHeight = 14;

struct Look
{
    const char *title;
    std::function<void(INAppStoreWindow &)> prepare;
    bool active = true;
};

INWindowButton *closeLight(const INAppStoreWindow &window)
{
    return window.findChild<INWindowButton *>(u"close"_s);
}

void color(INAppStoreWindow &window)
{
    window.setTitleBarHeight(40);
    window.setVerticallyCenterTitle(true);
    window.setTitleBarStartColor(palette::placeholders);
    window.setTitleBarEndColor(palette::placeholdersBorder);
    window.setBaselineSeparatorColor(palette::chromeText);
    window.setTitleTextColor(palette::headerText);
    window.setTitleTextShadow(TextShadow{palette::chromeText, QPointF(0, 1)});
    window.setInactiveTitleBarStartColor(palette::panel);
    window.setInactiveTitleBarEndColor(palette::panelOutline);
    window.setInactiveTitleTextColor(palette::chromeText);
    window.setInactiveBaselineSeparatorColor(palette::separator);
}

void setHeight(INAppStoreWindow &window, qreal height)
{
    window.setTitleBarHeight(height);
    window.setVerticallyCenterTitle(true);
}

void becomeFullScreen(INAppStoreWindow &window)
{
    window.setShowsTitleInFullscreen(true);
    window.setTitleTextColor(palette::headerText);
    window.setWindowState(Qt::WindowFullScreen);
}

void drawByBlock(INAppStoreWindow &window)
{
    setHeight(window, 40);
    window.setShowsTitle(false);
    window.setTitleBarDrawingBlock([](QPainter *painter, bool, const QRectF &rect, const QPainterPath &clippingPath) {
        painter->fillPath(clippingPath, palette::color);
        painter->setPen(palette::headerText);
        painter->setFont(latoRegular(13));
        painter->drawText(rect, Qt::AlignCenter, u"Drawn by a block"_s);
    });
}

const QList<Look> &looks()
{
    static const QList<Look> all{
        {"Active", [](auto &) {}},
        {"Not active", [](auto &) {}, false},
        {"Lights under the pointer", [](auto &window) { closeLight(window)->group()->setNumberOfCaptures(1); }},
        {"Close held down",
         [](auto &window) {
             closeLight(window)->group()->setNumberOfCaptures(1);
             closeLight(window)->setDown(true);
         }},
        {"Lights disabled", [](auto &window) { window.setStyleMask(INAppStoreWindow::Titled); }},
        {"Full screen", becomeFullScreen},
        {"No line below", [](auto &window) { window.setShowsBaselineSeparator(false); }},
        {"40 points high", [](auto &window) { setHeight(window, 40); }},
        {"Own colors", color},
        {"Own colors, not active", color, false},
        {"Drawn by a block", drawByBlock},
        {"Lights and title at the top",
         [](auto &window) {
             window.setTitleBarHeight(40);
             window.setCenterTrafficLightButtons(false);
             window.setTrafficLightButtonsTopMargin(4);
             window.setCenterFullScreenButton(false);
             window.setFullScreenButtonTopMargin(4);
         }},
        {"60 points high, lights from 60",
         [](auto &window) {
             setHeight(window, 60);
             window.setTrafficLightButtonsLeftMargin(60);
         }},
        {"Lights upright",
         [](auto &window) {
             setHeight(window, 70);
             window.setVerticalTrafficLightButtons(true);
         }},
    };
    return all;
}

QPixmap picture(const Look &look)
{
    INAppStoreWindow window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.setAttribute(Qt::WA_QuitOnClose, false);
    window.setBackgroundColor(palette::window);
    window.setTitle(u"Lumora"_s);
    window.setShowsTitle(true);
    look.prepare(window);
    const Qt::WindowStates state = window.windowState();
    window.resize(barWidth, static_cast<int>(window.titleBarHeight()) + contentHeight);
    window.setWindowState(Qt::WindowNoState);
    window.show();
    window.setWindowState(state);
    QApplication::setActiveWindow(look.active ? &window : nullptr);
    // Full screen may have resized it to the screen.
    window.resize(barWidth, static_cast<int>(window.titleBarHeight()) + contentHeight);
    const QPixmap grabbed = window.grab();
    closeLight(window)->group()->resetMouseCaptures();
    return grabbed;
}

} // namespace

TitleBarPage::TitleBarPage(QWidget *parent) : GalleryPage(parent)
{
    showPictures();
}

void TitleBarPage::showPictures()
{
    QList<QWidget *> row;
    QStringList titles;
    for (const Look &look : looks()) {
        auto *shown = new QLabel;
        shown->setPixmap(picture(look));
        row << shown;
        titles << QLatin1StringView(look.title);
        if (row.size() < 3 && &look != &looks().last())
            continue;
        addHeadings(titles);
        addRow(titles.size() == 3 && &look == &looks()[2] ? u"INAppStoreWindow"_s : QString(), row);
        row.clear();
        titles.clear();
    }
}

} // namespace lumora::gallery
