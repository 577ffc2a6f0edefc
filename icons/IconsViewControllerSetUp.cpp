// SPDX-License-Identifier: MIT
// The icon tool's fixed data, looks and connections, and its code snippets.
#include "IconsViewController.h"
#include "SnippetKeys.h"
#include "icons/pane/IconView.h"
#include "icons/pane/TodayIconPane.h"
#include "icons/pane/TodayIcons.h"
#include "tool/DropHighlight.h"
#include "tool/JobResultView.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/DropDownStyle.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/ToolTip.h"
#include "ui_IconsViewController.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QComboBox>

namespace lumora
{

void IconsViewController::setUpAppearance()
{
    new DropHighlight(m_ui->dropView, palette::icons);
    m_ui->dropView->setDelegate(this);
    m_ui->dropView->setAccessibleName(qtTrId("ACCESSIBLE_ICONS_DROP"));
    m_ui->sourceIconView->setAccessibleName(qtTrId("ACCESSIBLE_ICONS_SOURCE"));

    styleLabel(m_ui->sourceIconTitle, latoBold(15), palette::chromeText);
    m_ui->sourceIconTitle->setText(qtTrId("ICONS_SOURCE_TITLE"));
    styleLabel(m_ui->sourceIconSubtitle, latoRegular(13), palette::chromeText);
    m_ui->sourceIconSubtitle->setText(qtTrId("ICONS_SOURCE_SUBTITLE"));
    styleLabel(m_ui->platformTitle, latoBold(25), palette::icons);
    m_ui->platformTitle->setText(qtTrId("ICONS_PLATFORMS_TITLE"));
    styleLabel(m_ui->customIconTitle, latoBold(25), palette::icons);
    m_ui->customIconTitle->setText(qtTrId("ICONS_CUSTOM_SETTINGS"));
    styleLabel(m_ui->codeSnippetTitle, latoBold(25), palette::icons);
    m_ui->codeSnippetTitle->setText(qtTrId("Code Snippets"));

    styleButton(m_ui->browseButton, qtTrId("BROWSE"), palette::icons, palette::iconsBorder);
    styleButton(m_ui->generateIconsButton, qtTrId("GENERATE"), palette::icons, palette::iconsBorder);
    styleButton(m_ui->generateCustomButton, qtTrId("GENERATE"), palette::icons, palette::iconsBorder);
    styleButton(m_ui->codeSnippetCopyButton, qtTrId("COPY"), QStringLiteral("button_icon_copy"), palette::icons,
                palette::iconsBorder);

    styleButton(m_ui->allButton, qtTrId("ICONS_ALL"), palette::icons, palette::iconsBorder);
    m_ui->allButton->setAccessibleDescription(qtTrId("ICONS_PLATFORMS_TITLE"));
    m_ui->browseButton->setToolTip(tipWithKeys(qtTrId("TIP_BROWSE"), QKeySequence::Open));
    m_ui->dropView->setToolTip(tipWithKeys(qtTrId("TIP_DROP"), QKeySequence::Paste));

    // The accessible descriptions distinguish two buttons of the same name by their panels.
    m_ui->generateIconsButton->setAccessibleDescription(qtTrId("ICONS_PLATFORMS_TITLE"));
    m_ui->generateCustomButton->setAccessibleDescription(qtTrId("ICONS_CUSTOM_SETTINGS"));

    m_ui->iPhoneCheckbox->setText(qtTrId("ICONS_IPHONE"));
    m_ui->iPadCheckbox->setText(qtTrId("ICONS_IPAD"));
    m_ui->macCheckbox->setText(qtTrId("ICONS_MAC"));
    m_ui->androidCheckbox->setText(qtTrId("ICONS_ANDROID"));
    m_ui->webTouchCheckbox->setText(qtTrId("ICONS_WEB_TOUCH"));
    m_ui->favIconCheckbox->setText(qtTrId("ICONS_FAV_ICONS"));
    m_ui->customIconRoundedSixCheckbox->setText(qtTrId("ICONS_ROUNDED_CORNERS_IOS6"));
    m_ui->customIconRoundedCheckbox->setText(qtTrId("ICONS_ROUNDED_CORNERS"));
    m_ui->customIconSizeTextField->setPlaceholderString(qtTrId("ICONS_CUSTOM_SIZE"));
    m_ui->customIconSizeTextField->setAccessibleName(qtTrId("ICONS_CUSTOM_SIZE"));

    m_platformCaption = new TimedCaption(
        [this](const QString &caption) { m_ui->generateIconsButton->setText(caption); }, qtTrId("GENERATE"), this);
    m_customCaption = new TimedCaption([this](const QString &caption) { m_ui->generateCustomButton->setText(caption); },
                                       qtTrId("GENERATE"), this);
}

void IconsViewController::setUpPreviews()
{
    m_previews = {m_ui->iconPreviewOne, m_ui->iconPreviewTwo, m_ui->iconPreviewThree, m_ui->iconPreviewFour,
                  m_ui->iconPreviewFive};
    const std::array labels = {m_ui->iconPreviewLabelOne, m_ui->iconPreviewLabelTwo, m_ui->iconPreviewLabelThree,
                               m_ui->iconPreviewLabelFour, m_ui->iconPreviewLabelFive};
    for (std::size_t number = 0; number < m_previews.size(); ++number) {
        IconView *preview = m_previews[number];
        // The interface file gives it only this size; the layout has not run yet.
        preview->resize(preview->minimumSize());
        const QString width = QString::number(preview->width());
        styleLabel(labels[number], latoBold(13), palette::chromeText);
        labels[number]->setText(width);
        preview->setAccessibleName(qtTrId("ACCESSIBLE_ICONS_PREVIEW").replace(QStringLiteral("[SIZE]"), width));
        connect(preview, &IconView::pixelSideChanged, this, [this, preview] {
            if (!m_builtInIconPending && preview->picture().width() != preview->pixelSide())
                drawPreview(preview);
        });
    }
    connect(m_ui->sourceIconView, &IconView::pixelSideChanged, this, [this] {
        if (!m_builtInIconPending)
            fitSource();
    });
    connect(m_ui->sourceIconView, &IconView::firstPainted, this, &IconsViewController::loadBuiltInIcon);
}

void IconsViewController::setUpSnippets()
{
    const auto addEntry = [this](const QString &text, SnippetPlatform platform) {
        m_ui->codeSnippetDropdown->addItem(text, static_cast<int>(platform));
    };
    addEntry(qtTrId("SNIPPETS_PLATFORM_IOS"), SnippetPlatform::Ios);
    addEntry(qtTrId("ICONS_MAC"), SnippetPlatform::Mac);
    addEntry(qtTrId("ICONS_ANDROID"), SnippetPlatform::Android);
    addEntry(qtTrId("ICONS_WEB_TOUCH"), SnippetPlatform::WebTouch);
    addEntry(qtTrId("ICONS_FAV_ICONS"), SnippetPlatform::Favicon);
    m_ui->codeSnippetDropdown->setPlaceholderText(qtTrId("SNIPPETS_NO_PLATFORM"));
    m_ui->codeSnippetDropdown->setCurrentIndex(-1);
    m_ui->codeSnippetCopyButton->setEnabled(false);
    m_ui->codeSnippetDropdown->setAccessibleName(qtTrId("ACCESSIBLE_SNIPPET_PLATFORM"));
    // The toolkit reports the chosen entry as the name; the label says what the choice is for.
    m_ui->codeSnippetTitle->setBuddy(m_ui->codeSnippetDropdown);

    m_ui->codeSnippedView->setAccessibleName(qtTrId("ACCESSIBLE_SNIPPET"));
    m_ui->codeSnippedView->setPlaceholderText(qtTrId("SNIPPETS_PLATFORM_PROMPT"));
    m_ui->codeSnippedView->setFont(latoBold(11));
    QPalette colors = m_ui->codeSnippedView->palette();
    colors.setColor(QPalette::Text, palette::chromeText);
    m_ui->codeSnippedView->setPalette(colors);
}

void IconsViewController::setUpToday()
{
    m_today = new TodayIcons(services(), this);
    connect(m_today, &TodayIcons::messageWanted, this, &IconsViewController::showPopupWithTitle);
    connect(m_today, &TodayIcons::attentionWanted, this, &IconsViewController::jobEnded);
    connect(m_today, &TodayIcons::iconRead, this, &IconsViewController::takeIconOfToday);
    addToday([this](QWidget *pane) {
        QWidget *today = m_today->makePane(pane);
        m_today->pane()->dropView()->setDelegate(this);
        setUpResult(m_today->pane()->result(), palette::icons, palette::iconsBorder);
        return today;
    });
    // A drop elsewhere in the window goes to the classic view, also while the side of today covers it.
    connect(sides(), &PaneSides::shown, this, [this](ToolSide side) {
        m_ui->dropView->setTakesWhileHidden(side == ToolSide::Today);
        refreshPictures();
    });
}

bool IconsViewController::isToday() const
{
    return sides()->side() == ToolSide::Today && m_today->pane() != nullptr;
}

void IconsViewController::connectControls()
{
    using Self = IconsViewController;
    connect(m_ui->browseButton, &HoverButton::clicked, this, &Self::browseButtonPressed);
    connect(m_ui->generateIconsButton, &HoverButton::clicked, this, &Self::generatePlatformPressed);
    connect(m_ui->generateCustomButton, &HoverButton::clicked, this, &Self::generateCustomPressed);
    connect(m_ui->customIconSizeTextField, &ZKTextField::action, this, &Self::generateCustomPressed);
    connect(m_ui->allButton, &HoverButton::clicked, this, &Self::allPressed);
    connect(m_ui->iPhoneCheckbox, &CheckboxButton::clicked, this, &Self::iPhoneCheckboxChecked);
    connect(m_ui->iPadCheckbox, &CheckboxButton::clicked, this, &Self::iPadCheckboxChecked);
    connect(m_ui->macCheckbox, &CheckboxButton::clicked, this, &Self::macCheckboxChecked);
    connect(m_ui->androidCheckbox, &CheckboxButton::clicked, this, &Self::androidCheckboxChecked);
    connect(m_ui->webTouchCheckbox, &CheckboxButton::clicked, this, &Self::webtouchCheckboxChecked);
    connect(m_ui->favIconCheckbox, &CheckboxButton::clicked, this, &Self::faviconCheckboxChecked);
    connect(m_ui->customIconRoundedCheckbox, &RadioButton::clicked, this, &Self::checkbox_rounded_ios7_checked);
    connect(m_ui->customIconRoundedSixCheckbox, &RadioButton::clicked, this, &Self::checkbox_rounded_ios6_checked);
    styleDropDown(m_ui->codeSnippetDropdown);
    connect(m_ui->codeSnippetDropdown, &QComboBox::activated, this, &Self::snippetPlatformClicked);
    connect(m_ui->codeSnippetCopyButton, &IconButton::clicked, this, &Self::copyButtonClicked);
}

void IconsViewController::snippetPlatformClicked()
{
    // The devices belong to the first platform.
    if (m_ui->codeSnippetDropdown->currentIndex() < 0)
        m_ui->codeSnippetDropdown->setCurrentIndex(0);
    m_ui->codeSnippetCopyButton->setEnabled(true);
    const auto platform = static_cast<SnippetPlatform>(m_ui->codeSnippetDropdown->currentData().toInt());
    const char *key = snippetKey(platform, m_ui->iPhoneCheckbox->isActive(), m_ui->iPadCheckbox->isActive());
    m_ui->codeSnippedView->setReadOnly(false);
    m_ui->codeSnippedView->setPlainText(qtTrId(key));
    m_ui->codeSnippedView->setReadOnly(true);
}

void IconsViewController::refreshSnippet()
{
    if (m_ui->codeSnippetDropdown->currentData().toInt() == static_cast<int>(SnippetPlatform::Ios))
        snippetPlatformClicked();
}

void IconsViewController::copyButtonClicked()
{
    const QString snippet = m_ui->codeSnippedView->toPlainText();
    if (snippet.isEmpty())
        return;
    services().clipboard.setText(snippet);
    showPopupWithTitle(qtTrId("SNIPPETS_TITLE"), qtTrId("SNIPPETS_MESSAGE"), m_ui->codeSnippetCopyButton, false);
}

} // namespace lumora
