// SPDX-License-Identifier: MIT
#include "ControlPage.h"

#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/buttons/ImageButton.h"
#include "widgets/buttons/KBButton.h"
#include "widgets/buttons/RadioButton.h"
#include "widgets/style/Palette.h"
#include "widgets/tabs/BFIconTabBar.h"
#include "widgets/textfield/ZKTextField.h"

#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>

namespace lumora::gallery
{

namespace
{

using namespace std::chrono_literals;

/// How long the press animation takes to come to rest, and some more.
constexpr auto pictureDelay = 500ms;
/// Of a control here, in points; some would fill the page.
constexpr int widest = 140;

enum class State { AtRest, UnderPointer, Pressed, KeyFocus, Disabled, Mirrored };
constexpr std::array states{State::AtRest,   State::UnderPointer, State::Pressed,
                            State::KeyFocus, State::Disabled,     State::Mirrored};

template <typename Button> Button *named(const char *text)
{
    auto *made = new Button;
    made->setText(QLatin1StringView(text));
    return made;
}

template <typename Button> Button *active(Button *made)
{
    made->setActive(true);
    return made;
}

CheckboxButton *frozen(bool invalid)
{
    auto *made = named<CheckboxButton>("Check box");
    made->setInvalid(invalid);
    return made;
}

HoverButton *hoverButton(const QColor &normal, const QColor &hover)
{
    auto *made = named<HoverButton>("Generate");
    made->setNormalColor(normal);
    made->setHovercolor(hover);
    return made;
}

IconButton *iconButton()
{
    auto *made = named<IconButton>("Reset");
    made->setIconName(QStringLiteral("button_icon_reset"));
    made->setNormalColor(palette::icons);
    made->setHoverColor(palette::iconsBorder);
    made->setActiveColor(palette::chromeText);
    return made;
}

/// On a band of the colour that it has under it in the program's header.
QWidget *imageButton()
{
    auto *made = new ImageButton;
    made->setImageName(QStringLiteral("icon_settings"));
    made->setAlternateImageName(QStringLiteral("header_icon"));
    made->setFixedSize(44, 44);
    QPalette colors = made->palette();
    colors.setColor(made->backgroundRole(), palette::icons);
    made->setPalette(colors);
    made->setAutoFillBackground(true);
    return made;
}

KBButton *bezelled(const char *text, KBButtonType type)
{
    auto *made = named<KBButton>(text);
    made->setKBButtonType(type);
    return made;
}

ZKTextField *textField(const char *text, bool secure = false)
{
    auto *made = new ZKTextField;
    made->setString(QLatin1StringView(text));
    made->setPlaceholderString(QStringLiteral("Width"));
    made->setSecure(secure);
    return made;
}

BFIconTabBar *tabBar(bool multiple, const IndexSet &selected)
{
    auto *made = new BFIconTabBar;
    made->setMultipleSelection(multiple);
    QList<BFIconTabBarItem *> items;
    for (const auto *name : {"picker_wheel", "picker_sliders", "picker_palettes"})
        items << BFIconTabBarItem::itemWithIcon(NamedImage(QLatin1String(name)).icon(), QLatin1String(name));
    made->setItems(items);
    made->selectIndexes(selected, false);
    return made;
}

} // namespace

ControlPage::ControlPage(QWidget *parent) : GalleryPage(parent)
{
    addHeadings({QStringLiteral("At rest"), QStringLiteral("Under the pointer"), QStringLiteral("Held down"),
                 QStringLiteral("Keyboard focus"), QStringLiteral("Disabled"), QStringLiteral("Mirrored")});
    addStates(QStringLiteral("CheckboxButton"), [] { return named<CheckboxButton>("Check box"); });
    addStates(QStringLiteral("active"), [] { return active(named<CheckboxButton>("Check box")); });
    addStates(QStringLiteral("frozen, invalid"), [] { return frozen(true); });
    addStates(QStringLiteral("frozen, valid"), [] { return frozen(false); });
    addStates(QStringLiteral("RadioButton"), [] { return named<RadioButton>("Radio"); });
    addStates(QStringLiteral("active"), [] { return active(named<RadioButton>("Radio")); });
    addStates(QStringLiteral("HoverButton"),
              [] { return hoverButton(palette::placeholders, palette::placeholdersBorder); });
    addStates(QStringLiteral("in a light colour"),
              [] { return hoverButton(palette::validator, palette::validatorBorder); });
    addStates(QStringLiteral("IconButton"), [] { return iconButton(); });
    addStates(QStringLiteral("ImageButton"), [] { return imageButton(); });
    findChild<ImageButton *>()->setObjectName(QLatin1StringView(popoverAnchorName));
    addStates(QStringLiteral("KBButton, default"), [] { return bezelled("Default", KBButtonType::Default); });
    addStates(QStringLiteral("primary"), [] { return bezelled("Primary", KBButtonType::Primary); });
    addStates(QStringLiteral("information"), [] { return bezelled("Information", KBButtonType::Information); });
    addStates(QStringLiteral("success"), [] { return bezelled("Success", KBButtonType::Success); });
    addStates(QStringLiteral("warning"), [] { return bezelled("Warning", KBButtonType::Warning); });
    addStates(QStringLiteral("danger"), [] { return bezelled("Danger", KBButtonType::Danger); });
    addStates(QStringLiteral("inverse"), [] { return bezelled("Inverse", KBButtonType::Inverse); });
    addStates(QStringLiteral("ZKTextField"), [] { return textField("1024"); });
    addStates(QStringLiteral("empty"), [] { return textField(""); });
    addStates(QStringLiteral("secure"), [] { return textField("secret", true); });
    addStates(QStringLiteral("BFIconTabBar"), [] { return tabBar(false, {0}); });
    addStates(QStringLiteral("several selected"), [] { return tabBar(true, {0, 2}); });
    QTimer::singleShot(pictureDelay, this, &ControlPage::showStates);
}

void ControlPage::addStates(const QString &title, const std::function<QWidget *()> &make)
{
    QList<QWidget *> row;
    for (const State state : states) {
        QWidget *control = make();
        control->setMaximumWidth(std::min(control->maximumWidth(), widest));
        row << control;
        switch (state) {
        case State::AtRest:
            break;
        case State::UnderPointer:
            m_underPointer << control;
            break;
        case State::Pressed:
            // A field is edited from the press on, and only one can be.
            (qobject_cast<ZKTextField *>(control) ? m_clicked : m_held) << control;
            break;
        case State::KeyFocus:
            m_focused << control;
            break;
        case State::Disabled:
            control->setEnabled(false);
            break;
        case State::Mirrored:
            control->setLayoutDirection(Qt::RightToLeft);
            break;
        }
    }
    addRow(title, row);
}

void ControlPage::showStates()
{
    for (QWidget *control : std::as_const(m_clicked)) {
        press(control);
        photograph(control);
    }
    for (QWidget *control : std::as_const(m_focused)) {
        control->setFocus(Qt::TabFocusReason);
        photograph(control);
    }
    std::for_each(m_underPointer.cbegin(), m_underPointer.cend(), hover);
    std::for_each(m_held.cbegin(), m_held.cend(), press);
    if (QWidget *last = window()->focusWidget())
        last->clearFocus();
}

} // namespace lumora::gallery
