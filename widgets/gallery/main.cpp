// SPDX-License-Identifier: MIT
#include "ButtonPage.h"
#include "FocusPage.h"
#include "InputPage.h"

#include "widgets/Fonts.h"
#include "widgets/INAppStoreWindow.h"
#include "widgets/Palette.h"
#include "widgets/SFBPopover.h"

#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

using namespace lumora;
using namespace lumora::gallery;

namespace
{

QWidget *allPages()
{
    auto *pages = new QWidget;
    auto *column = new QVBoxLayout(pages);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(new ButtonPage);
    column->addWidget(new InputPage);
    column->addWidget(new FocusPage);
    return pages;
}

/// A popover at the right edge of the control; the control owns it.
void pointAt(QWidget *control, PopoverPosition position, const QColor &color)
{
    auto *content = new QLabel(QStringLiteral("SFBPopover, shown by a point of the window"));
    content->setFont(latoRegular(13));
    content->setAlignment(Qt::AlignCenter);
    content->resize(300, 36);
    auto *popover = new SFBPopover(content, control);
    popover->setAnimates(false);
    popover->setPosition(position);
    popover->setBorderColor(color);
    popover->setBorderWidth(2);
    popover->setBackgroundColor(palette::buttonText);
    popover->setClosesWhenPopoverResignsKey(false);
    popover->setClosesWhenApplicationBecomesInactive(false);
    const QPoint point = control->mapTo(control->window(), QPoint(control->width(), control->height() / 2));
    popover->displayPopoverInWindow(control->window(), QPointF(point.x(), control->window()->height() - point.y()));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    INAppStoreWindow window;
    window.setTitle(QStringLiteral("Lumora gallery"));
    window.setTitleBarHeight(40);
    window.setBackgroundColor(palette::buttonText);
    QWidget *pages = allPages();
    window.setContentView(pages);
    window.resize(pages->sizeHint() + QSize(2, 42));
    window.show();
    window.activateWindow();
    QTimer::singleShot(700, &window, [&window] {
        pointAt(window.findChild<QWidget *>(QString::fromLatin1(ButtonPage::popoverAnchorName)), PopoverPosition::Right,
                palette::icons);
    });
    return QApplication::exec();
}
