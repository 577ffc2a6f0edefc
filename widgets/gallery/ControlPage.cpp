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

using namespace Qt::StringLiterals;

namespace lumora::gallery
{

namespace
{

using namespace std::chrono_literals;

/// A little longer than the press animation.
constexpr auto pictureDelay = 500ms;
/// The widest control here, in points; some would fill the page.
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
    made->setIconName(u"button_icon_reset"_s);
    made->setNormalColor(palette::icons);
    made->setHoverColor(palette::iconsBorder);
    made->setActiveColor(palette::chromeText);
    return made;
}

/// On a band of the color of the program's header.
QWidget *imageButton()
{
    auto *made = new ImageButton;
    made->setImageName(u"icon_settings"_s);
    made->setAlternateImageName(u"header_icon"_s);
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
    made->setPlaceholderString(u"Width"_s);
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
    addHeadings(
        {u"At rest"_s, u"Under the pointer"_s, u"Held down"_s, u"Keyboard focus"_s, u"Disabled"_s, u"Mirrored"_s});
    addStates(u"CheckboxButton"_s, [] { return named<CheckboxButton>("Check box"); });
    addStates(u"active"_s, [] { return active(named<CheckboxButton>("Check box")); });
    addStates(u"frozen, invalid"_s, [] { return frozen(true); });
    addStates(u"frozen, valid"_s, [] { return frozen(false); });
    addStates(u"RadioButton"_s, [] { return named<RadioButton>("Radio"); });
    addStates(u"active"_s, [] { return active(named<RadioButton>("Radio")); });
    addStates(u"HoverButton"_s, [] { return hoverButton(palette::placeholders, palette::placeholdersBorder); });
    addStates(u"in a light color"_s, [] { return hoverButton(palette::validator, palette::validatorBorder); });
    addStates(u"IconButton"_s, [] { return iconButton(); });
    addStates(u"ImageButton"_s, [] { return imageButton(); });
    findChild<ImageButton *>()->setObjectName(QLatin1StringView(popoverAnchorName));
    addStates(u"KBButton, default"_s, [] { return bezelled("Default", KBButtonType::Default); });
    addStates(u"primary"_s, [] { return bezelled("Primary", KBButtonType::Primary); });
    addStates(u"information"_s, [] { return bezelled("Information", KBButtonType::Information); });
    addStates(u"success"_s, [] { return bezelled("Success", KBButtonType::Success); });
    addStates(u"warning"_s, [] { return bezelled("Warning", KBButtonType::Warning); });
    addStates(u"danger"_s, [] { return bezelled("Danger", KBButtonType::Danger); });
    addStates(u"inverse"_s, [] { return bezelled("Inverse", KBButtonType::Inverse); });
    addStates(u"ZKTextField"_s, [] { return textField("1024"); });
    addStates(u"empty"_s, [] { return textField(""); });
    addStates(u"secure"_s, [] { return textField("secret", true); });
    addStates(u"BFIconTabBar"_s, [] { return tabBar(false, {0}); });
    addStates(u"several selected"_s, [] { return tabBar(true, {0, 2}); });
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
            // A press begins the editing of a field, and only one field can be edited.
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
