// SPDX-License-Identifier: MIT
#include "FocusPage.h"

#include "widgets/BFIconTabBar.h"
#include "widgets/CheckboxButton.h"
#include "widgets/HoverButton.h"
#include "widgets/IconButton.h"
#include "widgets/ImageButton.h"
#include "widgets/KBButton.h"
#include "widgets/Palette.h"
#include "widgets/RadioButton.h"
#include "widgets/ZKTextField.h"

#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

namespace lumora::gallery
{

namespace
{

/// Gives the controls the focus one after the other and puts a picture of each in its place.
void photograph(QWidget *page, const QList<QWidget *> &controls)
{
    for (QWidget *control : controls) {
        control->setFocus(Qt::TabFocusReason);
        QPixmap picture = control->grab();
        auto *shown = new QLabel;
        shown->setPixmap(picture);
        delete page->layout()->replaceWidget(control, shown);
        control->hide();
        control->deleteLater();
    }
}

template <typename Button> Button *named(const QString &text)
{
    auto *made = new Button;
    made->setText(text);
    return made;
}

HoverButton *hoverButton(const QString &text, const QColor &color)
{
    auto *made = named<HoverButton>(text);
    made->setNormalColor(color);
    return made;
}

KBButton *bezelled(const QString &text, KBButtonType type)
{
    auto *made = named<KBButton>(text);
    made->setKBButtonType(type);
    return made;
}

} // namespace

FocusPage::FocusPage(QWidget *parent) : GalleryPage(parent)
{
    auto *icon = named<IconButton>(QStringLiteral("Reset"));
    icon->setIconName(QStringLiteral("button_icon_reset"));
    icon->setNormalColor(palette::devices);
    auto *image = new ImageButton;
    image->setImageName(QStringLiteral("app_icon"));
    image->setFixedSize(60, 60);
    auto *bar = new BFIconTabBar;
    QList<BFIconTabBarItem *> items;
    for (const auto *name : {"picker_wheel", "picker_sliders", "picker_palettes"})
        items << BFIconTabBarItem::itemWithIcon(NamedImage(QLatin1String(name)).icon(), {});
    bar->setItems(items);
    auto *field = new ZKTextField;
    field->setString(QStringLiteral("640"));
    const QList<QWidget *> first{named<CheckboxButton>(QStringLiteral("Checkbox")),
                                 named<RadioButton>(QStringLiteral("Radio")), field, bar, image};
    const QList<QWidget *> second{hoverButton(QStringLiteral("Blue"), palette::icons),
                                  hoverButton(QStringLiteral("Yellow"), palette::validator),
                                  hoverButton(QStringLiteral("Dark"), palette::chromeText), icon};
    const QList<QWidget *> third{bezelled(QStringLiteral("Default"), KBButtonType::Default),
                                 bezelled(QStringLiteral("Primary"), KBButtonType::Primary)};
    addRow(QStringLiteral("Keyboard focus"), first);
    addRow(QString(), second);
    addRow(QString(), third);
    QTimer::singleShot(500, this, [this, controls = first + second + third] { photograph(this, controls); });
}

} // namespace lumora::gallery
