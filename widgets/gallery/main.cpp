// SPDX-License-Identifier: MIT
#include "ControlPage.h"
#include "TitleBarPage.h"
#include "ValuePage.h"
#include "WindowPage.h"

#include "widgets/buttons/ImageButton.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/AppStyle.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/FrameClock.h"
#include "widgets/style/Palette.h"
#include "widgets/window/INAppStoreWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

using namespace lumora;
using namespace lumora::gallery;

namespace
{

QWidget *allPages()
{
    auto *pages = new QWidget;
    auto *columns = new QHBoxLayout(pages);
    columns->setContentsMargins({});
    columns->setSpacing(0);
    auto *controls = new QVBoxLayout;
    controls->setSpacing(0);
    controls->addWidget(new ControlPage, 0, Qt::AlignLeft);
    controls->addWidget(new ValuePage, 1, Qt::AlignTop);
    columns->addLayout(controls);
    auto *windows = new QVBoxLayout;
    windows->setSpacing(0);
    windows->addWidget(new TitleBarPage);
    windows->addWidget(new WindowPage, 1, Qt::AlignTop);
    columns->addLayout(windows);
    return pages;
}

/// A popover at the right edge of the control.
void pointAt(const QAbstractButton *control, PopoverPosition position, const QColor &color)
{
    auto *content = new QLabel(QStringLiteral("SFBPopover, shown by a point of the window"));
    content->setFont(latoRegular(13));
    content->setAlignment(Qt::AlignCenter);
    content->resize(300, 36);
    auto *popover = new SFBPopover(content, control->window());
    popover->setPosition(position);
    popover->setBorderColor(color);
    popover->setBorderWidth(2);
    popover->setBackgroundColor(palette::buttonText);
    popover->setClosesWhenPopoverResignsKey(true);
    QObject::connect(popover, &SFBPopover::closed, popover, &QObject::deleteLater);
    const QPoint point = control->mapTo(control->window(), QPoint(control->width(), control->height() / 2));
    popover->displayPopoverInWindow(control->window(), QPointF(point.x(), control->window()->height() - point.y()));
}

} // namespace

int main(int argc, char *argv[])
{
    applyAppStyle();
    QApplication application(argc, argv);
    applyAppColors();
    const FrameClock frames;
    INAppStoreWindow window;
    window.setTitle(QStringLiteral("Lumora gallery"));
    window.setTitleBarHeight(40);
    window.setBackgroundColor(palette::buttonText);
    QWidget *pages = allPages();
    window.setContentView(pages);
    window.resize(pages->sizeHint() + QSize(2, 42));
    window.show();
    window.activateWindow();
    const auto *opener = window.findChild<ImageButton *>(QString::fromLatin1(ControlPage::popoverAnchorName));
    QObject::connect(opener, &QAbstractButton::clicked, &window,
                     [&window, opener] { pointAt(opener, PopoverPosition::Right, palette::icons); });
    return QApplication::exec();
}
