// SPDX-License-Identifier: MIT
#include "ButtonPage.h"

#include "widgets/CheckboxButton.h"
#include "widgets/HoverButton.h"
#include "widgets/IconButton.h"
#include "widgets/ImageButton.h"
#include "widgets/Palette.h"
#include "widgets/RadioButton.h"

#include <QFrame>
#include <QTimer>

namespace lumora::gallery
{

namespace
{

template <typename Button> Button *button(const QString &text)
{
    auto *made = new Button;
    made->setText(text);
    return made;
}

HoverButton *hoverButton(const QString &text, const QColor &normal, const QColor &hover)
{
    auto *made = button<HoverButton>(text);
    made->setNormalColor(normal);
    made->setHovercolor(hover);
    return made;
}

IconButton *iconButton(const QString &text, const QString &icon, const QColor &normal, const QColor &hover)
{
    auto *made = button<IconButton>(text);
    made->setIconName(icon);
    made->setNormalColor(normal);
    made->setHoverColor(hover);
    made->setActiveColor(hover);
    return made;
}

template <typename Button> Button *active(Button *made)
{
    made->setActive(true);
    return made;
}

QWidget *disabled(QWidget *made)
{
    made->setEnabled(false);
    return made;
}

CheckboxButton *frozen(const QString &text, bool invalid)
{
    auto *made = button<CheckboxButton>(text);
    made->setInvalid(invalid);
    return made;
}

QWidget *rightToLeft(QWidget *made)
{
    made->setLayoutDirection(Qt::RightToLeft);
    return made;
}

} // namespace

ButtonPage::ButtonPage(QWidget *parent) : GalleryPage(parent)
{
    auto *boxUnderPointer = button<CheckboxButton>(QStringLiteral("Pointer"));
    addRow(QStringLiteral("CheckboxButton"), {button<CheckboxButton>(QStringLiteral("Idle")), boxUnderPointer,
                                              active(button<CheckboxButton>(QStringLiteral("Active"))),
                                              disabled(button<CheckboxButton>(QStringLiteral("Disabled"))),
                                              rightToLeft(active(button<CheckboxButton>(QStringLiteral("Mirrored"))))});
    addRow(QStringLiteral("CheckboxButton, frozen"),
           {frozen(QStringLiteral("Invalid"), true), frozen(QStringLiteral("Valid"), false)});
    auto *radioUnderPointer = button<RadioButton>(QStringLiteral("Pointer"));
    addRow(QStringLiteral("RadioButton"), {button<RadioButton>(QStringLiteral("Idle")), radioUnderPointer,
                                           active(button<RadioButton>(QStringLiteral("Active"))),
                                           disabled(active(button<RadioButton>(QStringLiteral("Disabled")))),
                                           rightToLeft(active(button<RadioButton>(QStringLiteral("Mirrored"))))});

    auto *hoverUnderPointer = hoverButton(QStringLiteral("Pointer"), palette::icons, palette::iconsBorder);
    addRow(QStringLiteral("HoverButton"),
           {hoverButton(QStringLiteral("Idle"), palette::icons, palette::iconsBorder), hoverUnderPointer,
            hoverButton(QStringLiteral("Generate"), palette::placeholders, palette::placeholdersBorder),
            disabled(hoverButton(QStringLiteral("Disabled"), palette::resizer, palette::resizerBorder)),
            hoverButton(QStringLiteral("A text that is too long"), palette::color, palette::colorBorder)});

    auto *iconUnderPointer = iconButton(QStringLiteral("Pointer"), QStringLiteral("button_icon_reset"),
                                        palette::devices, palette::devicesBorder);
    addRow(QStringLiteral("IconButton"),
           {iconButton(QStringLiteral("Reset"), QStringLiteral("button_icon_reset"), palette::devices,
                       palette::devicesBorder),
            iconUnderPointer,
            iconButton(QStringLiteral("Close"), QStringLiteral("button_icon_close"), palette::errorLight,
                       palette::errorDark),
            disabled(iconButton(QStringLiteral("Copy"), QStringLiteral("button_icon_copy"), palette::icons,
                                palette::iconsBorder)),
            rightToLeft(iconButton(QStringLiteral("Mirrored"), QStringLiteral("button_icon_mail"), palette::devices,
                                   palette::devicesBorder))});
    addRow(QString(), {iconButton(QStringLiteral("Bug report"), QStringLiteral("button_icon_bugreport"), palette::icons,
                                  palette::iconsBorder),
                       iconButton(QStringLiteral("Feature request"), QStringLiteral("button_icon_featurerequest"),
                                  palette::icons, palette::iconsBorder),
                       iconButton(QStringLiteral("Feedback"), QStringLiteral("button_icon_feedback"), palette::icons,
                                  palette::iconsBorder),
                       iconButton(QStringLiteral("Follow us"), QStringLiteral("button_icon_twitter"),
                                  palette::socialBlue, palette::socialBlueDark),
                       iconButton(QStringLiteral("Find us"), QStringLiteral("button_icon_facebook"),
                                  palette::networkNavy, palette::networkNavyDark)});

    QList<QWidget *> images;
    for (const auto *name : {"icon_settings", "header_icon"}) {
        auto *made = new ImageButton;
        made->setImageName(QLatin1String(name));
        made->setAlternateImageName(QLatin1String(name));
        made->setFixedSize(60, 60);
        auto *band = new QFrame;
        QPalette colors = band->palette();
        colors.setColor(QPalette::Window, palette::icons);
        band->setPalette(colors);
        band->setAutoFillBackground(true);
        band->setFixedSize(60, 60);
        made->setParent(band);
        images << band;
    }
    images.last()->findChild<ImageButton *>()->setObjectName(QLatin1String(popoverAnchorName));
    addRow(QStringLiteral("ImageButton"), images);

    QTimer::singleShot(0, this, [=] {
        for (QWidget *control :
             QList<QWidget *>{boxUnderPointer, radioUnderPointer, hoverUnderPointer, iconUnderPointer})
            hover(control);
    });
}

} // namespace lumora::gallery
