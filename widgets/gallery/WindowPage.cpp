// SPDX-License-Identifier: MIT
#include "WindowPage.h"

#include "widgets/popover/SFBPopoverWindowFrame.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"
#include "widgets/window/INWindowButton.h"
#include "widgets/window/INWindowButtonGroup.h"

#include <QGridLayout>
#include <QLabel>

#include <array>

using namespace Qt::StringLiterals;

namespace lumora::gallery
{

namespace
{

constexpr std::array kinds{"close", "minimize", "zoom", "fullscreen"};

enum class Look { Active, NotKey, Rollover, Pressed, Disabled };

/// The four buttons on a band of the color of most title bars.
QWidget *lights(Look look)
{
    auto *band = new QWidget;
    QPalette colors = band->palette();
    colors.setColor(QPalette::Window, palette::icons);
    band->setPalette(colors);
    band->setAutoFillBackground(true);
    band->setFixedSize(120, 32);
    const QString group = u"gallery.%1"_s.arg(static_cast<int>(look));
    int x = 16;
    for (const char *kind : kinds) {
        auto *button = new INWindowButton(group, QLatin1StringView(kind), band);
        // Also when the gallery does not have the keyboard.
        if (look == Look::NotKey)
            button->setActiveImage(button->activeNotKeyWindowImage());
        else
            button->setActiveNotKeyWindowImage(button->activeImage());
        button->setDown(look == Look::Pressed);
        button->setEnabled(look != Look::Disabled);
        button->move(x, 8);
        x += 24;
    }
    if (look == Look::Rollover)
        INWindowButtonGroup::groupWithIdentifier(group)->setNumberOfCaptures(1);
    return band;
}

/// A popover's balloon without its window, with a text in it.
SFBPopoverWindowFrame *balloon(const QString &text)
{
    auto *frame = new SFBPopoverWindowFrame;
    constexpr int margin = SFBPopoverWindowFrame::shadowMargin;
    frame->setFixedSize(190 + 2 * margin, 74 + 2 * margin);
    auto *label = new QLabel(text, frame);
    label->setFont(latoRegular(13));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    const auto place = [frame, label] {
        const QRectF area = flipped(frame->contentArea(), frame->bounds().height()).translated(margin, margin);
        label->setGeometry(area.toRect());
    };
    QObject::connect(frame, &SFBPopoverWindowFrame::outlineChanged, label, place);
    return frame;
}

SFBPopoverWindowFrame *balloonAt(int position)
{
    constexpr std::array names{"Left",
                               "Below",
                               "Right",
                               "Above",
                               "Left, near the bottom",
                               "Left, near the top",
                               "Right, near the bottom",
                               "Right, near the top",
                               "Above, near the right",
                               "Above, near the left",
                               "Below, near the right",
                               "Below, near the left"};
    const auto index = static_cast<size_t>(position);
    SFBPopoverWindowFrame *frame = balloon(u"%1 · %2"_s.arg(position).arg(QLatin1StringView(names[index])));
    frame->setBackgroundColor(palette::window);
    frame->setBorderColor(palette::icons);
    frame->setPopoverPosition(static_cast<PopoverPosition>(position));
    return frame;
}

/// A balloon with its default settings.
SFBPopoverWindowFrame *plainBalloon()
{
    SFBPopoverWindowFrame *frame = balloon(u"As it comes"_s);
    QLabel *label = frame->findChild<QLabel *>();
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, palette::buttonText);
    label->setPalette(colors);
    frame->setPopoverPosition(PopoverPosition::Above);
    return frame;
}

SFBPopoverWindowFrame *squareBalloon()
{
    SFBPopoverWindowFrame *frame = balloonAt(static_cast<int>(PopoverPosition::BelowArrowNearLeft));
    frame->findChild<QLabel *>()->setText(u"Square corner, wide border"_s);
    frame->setDrawRoundCornerBesideArrow(false);
    frame->setBorderWidth(4);
    frame->setBorderColor(palette::successDark);
    return frame;
}

SFBPopoverWindowFrame *balloonWithoutArrow()
{
    SFBPopoverWindowFrame *frame = balloonAt(static_cast<int>(PopoverPosition::Below));
    frame->findChild<QLabel *>()->setText(u"No arrow"_s);
    frame->setDrawsArrow(false);
    frame->setBorderColor(palette::errorDark);
    return frame;
}

} // namespace

WindowPage::WindowPage(QWidget *parent) : GalleryPage(parent)
{
    addHeadings({u"Active"_s, u"Not key"_s, u"Under the pointer"_s});
    addRow(u"INWindowButton"_s, {lights(Look::Active), lights(Look::NotKey), lights(Look::Rollover)});
    addHeadings({u"Held down"_s, u"Disabled"_s});
    addRow(QString(), {lights(Look::Pressed), lights(Look::Disabled)});
    for (int row = 0; row < 4; ++row) {
        QList<QWidget *> balloons;
        for (int position = row * 3; position < row * 3 + 3; ++position)
            balloons << balloonAt(position);
        addRow(row == 0 ? u"SFBPopover"_s : QString(), balloons);
    }
    addRow(QString(), {plainBalloon(), squareBalloon(), balloonWithoutArrow()});
}

} // namespace lumora::gallery
