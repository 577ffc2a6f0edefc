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

using namespace Qt::StringLiterals;

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
void pointAt(QAbstractButton *control, const QColor &color)
{
    auto *content = new QLabel(u"SFBPopover, beside the button"_s);
    content->setFont(latoRegular(13));
    content->setAlignment(Qt::AlignCenter);
    content->resize(300, 36);
    auto *popover = new SFBPopover(content, control->window());
    popover->setBorderColor(color);
    popover->setBorderWidth(2);
    popover->setBackgroundColor(palette::buttonText);
    popover->setClosesWhenPopoverResignsKey(true);
    QObject::connect(popover, &SFBPopover::closed, popover, &QObject::deleteLater);
    popover->displayPopover({control, Qt::RightEdge, 0, {}});
}

} // namespace

int main(int argc, char *argv[])
{
    applyAppStyle();
    QApplication application(argc, argv);
    applyAppColors();
    const FrameClock frames;
    INAppStoreWindow window;
    window.setTitle(u"Lumora gallery"_s);
    window.setTitleBarHeight(40);
    window.setBackgroundColor(palette::buttonText);
    QWidget *pages = allPages();
    window.setContentView(pages);
    window.resize(pages->sizeHint() + QSize(2, 42));
    window.show();
    window.activateWindow();
    auto *opener = window.findChild<ImageButton *>(QString::fromLatin1(ControlPage::popoverAnchorName));
    QObject::connect(opener, &QAbstractButton::clicked, &window,
                     [&window, opener] { pointAt(opener, palette::icons); });
    return QApplication::exec();
}
