// SPDX-License-Identifier: MIT
#include "InputPage.h"

#include "widgets/BFIconTabBar.h"
#include "widgets/KBButton.h"
#include "widgets/LBProgressBar.h"
#include "widgets/NamedImage.h"
#include "widgets/Palette.h"
#include "widgets/ZKFieldEditor.h"
#include "widgets/ZKTextField.h"

#include <QTimer>

namespace lumora::gallery
{

namespace
{

ZKTextField *textField(const QString &text, const QString &placeholder = {})
{
    auto *field = new ZKTextField;
    field->setString(text);
    field->setPlaceholderString(placeholder);
    return field;
}

ZKTextField *secretField()
{
    ZKTextField *field = textField(QStringLiteral("secret"));
    field->setSecure(true);
    return field;
}

BFIconTabBar *tabBar(bool multiple, const IndexSet &selected)
{
    auto *bar = new BFIconTabBar;
    bar->setMultipleSelection(multiple);
    QList<BFIconTabBarItem *> items;
    for (const auto *name : {"picker_wheel", "picker_sliders", "picker_palettes", "picker_recent", "picker_pipette"})
        items << BFIconTabBarItem::itemWithIcon(NamedImage(QLatin1String(name)).icon(), QLatin1String(name));
    bar->setItems(items);
    bar->selectIndexes(selected, false);
    return bar;
}

LBProgressBar *progressBar(double value, const QColor &light, const QColor &dark)
{
    auto *bar = new LBProgressBar;
    bar->setLightColor(light);
    bar->setDarkColor(dark);
    bar->setDoubleValue(value);
    bar->setMinimumWidth(140);
    return bar;
}

KBButton *bezelled(const QString &text, KBButtonType type)
{
    auto *button = new KBButton;
    button->setText(text);
    button->setKBButtonType(type);
    return button;
}

template <typename Control> Control *disabled(Control *control)
{
    control->setEnabled(false);
    return control;
}

template <typename Control> Control *mirrored(Control *control)
{
    control->setLayoutDirection(Qt::RightToLeft);
    return control;
}

} // namespace

InputPage::InputPage(QWidget *parent) : GalleryPage(parent)
{
    auto *edited = textField(QStringLiteral("Selected"));
    addRow(QStringLiteral("ZKTextField"), {textField(QStringLiteral("1024")), textField({}, QStringLiteral("Width")),
                                           edited, secretField(), disabled(textField(QStringLiteral("Disabled")))});
    addRow(QStringLiteral("ZKTextField, text too long, mirrored"),
           {textField(QStringLiteral("A text that is by far too long to fit into any box of this size")),
            mirrored(textField(QStringLiteral("Mirrored")))});

    auto *animated = progressBar(60, palette::placeholders, palette::placeholdersBorder);
    animated->startAnimation();
    addRow(QStringLiteral("LBProgressBar"), {progressBar(0, palette::resizer, palette::resizerBorder),
                                             progressBar(30, palette::resizer, palette::resizerBorder), animated,
                                             progressBar(100, palette::icons, palette::iconsBorder),
                                             disabled(progressBar(50, palette::resizer, palette::resizerBorder))});
    addRow(QStringLiteral("LBProgressBar, little, mirrored"),
           {progressBar(6, palette::resizer, palette::resizerBorder),
            mirrored(progressBar(40, palette::color, palette::colorBorder))});

    addRow(QStringLiteral("KBButton"), {bezelled(QStringLiteral("Default"), KBButtonType::Default),
                                        bezelled(QStringLiteral("Primary"), KBButtonType::Primary),
                                        bezelled(QStringLiteral("Information"), KBButtonType::Information),
                                        bezelled(QStringLiteral("Success"), KBButtonType::Success),
                                        disabled(bezelled(QStringLiteral("Disabled"), KBButtonType::Primary))});
    auto *held = bezelled(QStringLiteral("Held down"), KBButtonType::Primary);
    held->setDown(true);
    auto *underPointer = bezelled(QStringLiteral("Pointer"), KBButtonType::Primary);
    addRow(QString(), {bezelled(QStringLiteral("Warning"), KBButtonType::Warning),
                       bezelled(QStringLiteral("Danger"), KBButtonType::Danger),
                       bezelled(QStringLiteral("Inverse"), KBButtonType::Inverse), held, underPointer});

    auto *single = tabBar(false, {1});
    addRow(QStringLiteral("BFIconTabBar"),
           {single, tabBar(true, {0, 2, 3}), disabled(tabBar(false, {0})), mirrored(tabBar(false, {0}))});

    QTimer::singleShot(0, this, [=] { hover(underPointer); });
    // When the other pages are done with the focus.
    QTimer::singleShot(900, this, [=] {
        edited->beginEditing();
        edited->currentFieldEditor()->selectAll();
    });
}

} // namespace lumora::gallery
