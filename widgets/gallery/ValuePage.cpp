// SPDX-License-Identifier: MIT
#include "ValuePage.h"

#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/buttons/KBButton.h"
#include "widgets/buttons/RadioButton.h"
#include "widgets/progress/LBProgressBar.h"
#include "widgets/style/Palette.h"
#include "widgets/textfield/ZKTextField.h"

using namespace Qt::StringLiterals;

namespace lumora::gallery
{

namespace
{

enum class Look { Plain, Disabled, Mirrored };

LBProgressBar *progressBar(double value, const QColor &light, const QColor &dark, Look look)
{
    auto *bar = new LBProgressBar;
    bar->setLightColor(light);
    bar->setDarkColor(dark);
    bar->setDoubleValue(value);
    bar->setEnabled(look != Look::Disabled);
    if (look == Look::Mirrored)
        bar->setLayoutDirection(Qt::RightToLeft);
    return bar;
}

QList<QWidget *> progressBars(Look look)
{
    auto *animated = progressBar(60, palette::placeholders, palette::placeholdersBorder, look);
    animated->startAnimation();
    return {progressBar(0, palette::resizer, palette::resizerBorder, look),
            progressBar(6, palette::resizer, palette::resizerBorder, look),
            progressBar(30, palette::resizer, palette::resizerBorder, look), animated,
            progressBar(100, palette::icons, palette::iconsBorder, look)};
}

IconButton *iconButton(const char *text, const char *icon, const QColor &color)
{
    auto *made = new IconButton;
    made->setText(QLatin1StringView(text));
    made->setIconName(QLatin1StringView(icon));
    made->setNormalColor(color);
    return made;
}

/// No wider than a column, with a text that does not fit.
template <typename Control> Control *narrow(Control *control)
{
    control->setFixedWidth(130);
    return control;
}

template <typename Button> Button *talkative()
{
    auto *made = narrow(new Button);
    made->setText(u"A text that is by far too long"_s);
    return made;
}

ZKTextField *talkativeField()
{
    auto *made = narrow(new ZKTextField);
    made->setString(u"A text that is by far too long"_s);
    return made;
}

} // namespace

ValuePage::ValuePage(QWidget *parent) : GalleryPage(parent)
{
    addHeadings({u"Nothing"_s, u"Little"_s, u"Part"_s, u"Running"_s, u"Full"_s});
    addRow(u"LBProgressBar"_s, progressBars(Look::Plain));
    addRow(u"disabled"_s, progressBars(Look::Disabled));
    addRow(u"mirrored"_s, progressBars(Look::Mirrored));
    addRow(u"IconButton, icons"_s, {iconButton("Bug", "button_icon_bugreport", palette::icons),
                                    iconButton("Idea", "button_icon_featurerequest", palette::icons),
                                    iconButton("Feedback", "button_icon_feedback", palette::icons),
                                    iconButton("Follow us", "button_icon_twitter", palette::socialBlue),
                                    iconButton("Find us", "button_icon_facebook", palette::networkNavy)});
    addRow(QString(), {iconButton("Close", "button_icon_close", palette::errorLight),
                       iconButton("Copy", "button_icon_copy", palette::icons),
                       iconButton("Mail", "button_icon_mail", palette::devices),
                       iconButton("Reset", "button_icon_reset", palette::devices)});
    addRow(u"Text too long"_s, {talkative<HoverButton>(), talkative<IconButton>(), talkative<KBButton>(),
                                talkative<CheckboxButton>(), talkativeField()});
}

} // namespace lumora::gallery
