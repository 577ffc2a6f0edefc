// SPDX-License-Identifier: MIT
#include "IconsViewController.h"

#include "IconExport.h"
#include "foundation/LeadingInteger.h"
#include "pictures/PictureOperations.h"
#include "ui_IconsViewController.h"
#include "widgets/style/Palette.h"

namespace lumora
{

namespace
{

JobResult resultOf(const IconExport &run)
{
    const qsizetype written = std::count_if(run.files.begin(), run.files.end(),
                                            [](const IconFile &file) { return !file.failure.has_value(); });
    // If the folder could not be created, all other failures follow from that.
    const QList<Failure> failures = run.folderFailure ? QList<Failure>{*run.folderFailure} : run.failures();
    return jobResult(countedIcons, written, run.files.size(), run.folder.path, {failures.begin(), failures.end()});
}

} // namespace

IconsViewController::IconsViewController(const Services &services, QObject *parent)
    : ToolViewController(services, parent), m_ui(std::make_unique<Ui::IconsViewController>())
{
    m_ui->setupUi(view());
    setUpAppearance();
    setUpReading();
    setUpPreviews();
    setUpSnippets();
    connectControls();
    setUpResult(m_ui->resultView, palette::icons, palette::iconsBorder);
    setUpToday();
    createPopup();
}

IconsViewController::~IconsViewController() = default;

// The export

void IconsViewController::generatePlatformPressed()
{
    if (!hasSource())
        return;
    const bool anyChosen = std::any_of(iconPlatforms.begin(), iconPlatforms.end(),
                                       [this](const PlatformIcons &icons) { return isChosen(icons.platform); });
    if (anyChosen)
        openChooseDestinationForPlatforms(true);
    else
        showPopupWithTitle(qtTrId("ICONS_NO_PLATFORM_ALERT_TITLE"), qtTrId("ICONS_NO_PLATFORM_ALERT_MESSAGE"),
                           m_ui->generateIconsButton, true);
}

void IconsViewController::generateCustomPressed()
{
    if (!hasSource())
        return;
    const QString typed = m_ui->customIconSizeTextField->string();
    const int size = leadingInteger(typed);
    if (typed.isEmpty()) {
        showPopupWithTitle(qtTrId("ICONS_NO_DIMENSION_ALERT_TITLE"), qtTrId("ICONS_NO_DIMENSION_ALERT_MESSAGE"),
                           m_ui->customIconSizeTextField, true);
    } else if (size >= 1 && size <= sourceIconSize) {
        m_customIconSize = size;
        openChooseDestinationForPlatforms(false);
    } else {
        showPopupWithTitle(qtTrId("ICONS_INCORRECT_SIZE_ALERT_TITLE"), qtTrId("ICONS_INCORRECT_SIZE_ALERT_MESSAGE"),
                           m_ui->customIconSizeTextField, true);
    }
}

bool IconsViewController::hasSource()
{
    if (!icon().isNull())
        return true;
    showPopupWithTitle(qtTrId("ICONS_NO_SOURCE_ALERT_TITLE"), qtTrId("ICONS_NO_SOURCE_ALERT_MESSAGE"),
                       m_ui->browseButton, true);
    return false;
}

void IconsViewController::openChooseDestinationForPlatforms(bool forPlatforms)
{
    const auto chosen = [this, forPlatforms](const QString &path) {
        m_savePath = path;
        if (forPlatforms)
            generatePlatformIcons();
        else
            generateCustomIcon();
    };
    // The source's folder until the user has chosen another.
    const QString start = m_savePath.isEmpty() ? m_browsePath : m_savePath;
    services().folderChooser.chooseFolder(window(), {qtTrId("ICONS_DESTINATION"), start}, chosen);
}

void IconsViewController::generatePlatformIcons()
{
    PlatformIconsRequest request;
    // A copy, since the tool may take another source while the export runs.
    request.icon = icon().copy();
    request.savePath = m_savePath;
    request.isChosen = [choices = m_choices](const PlatformIcons &icons) {
        return choices->at(static_cast<std::size_t>(icons.platform)).load();
    };
    for (const PlatformIcons &icons : iconPlatforms) {
        if (isChosen(icons.platform))
            request.expected << icons.platform;
    }
    m_ui->resultView->clear();
    m_jobs.start([this, request](const BackgroundJob &job) {
        const bool hasIcon = !request.icon.isNull();
        job.post([this, hasIcon] {
            if (hasIcon)
                m_platformCaption->show(qtTrId("ICONS_EXPORTING"));
            else
                hasSource();
        });
        const IconExport result = lumora::generatePlatformIcons(request);
        job.post([this, result, hasIcon] {
            m_platformCaption->showForAWhile(qtTrId("ICONS_DONE"));
            jobEnded();
            // Without a source the user has already seen a message.
            if (hasIcon)
                m_ui->resultView->setResult(resultOf(result));
            if (result.folder.nameTaken)
                showNewFolder(result.folder.name(), m_ui->generateIconsButton);
        });
    });
}

void IconsViewController::generateCustomIcon()
{
    if (!hasSource())
        return;
    m_ui->customIconSizeTextField->endEditing();
    const IconExport result = lumora::generateCustomIcon({icon(), m_savePath, m_customIconSize, cornerMode()});
    m_ui->resultView->setResult(resultOf(result));
    const std::optional<Failure> failure = result.files.first().failure;
    if (failure && failure->code == FailureCode::CannotCreateFolder)
        return;
    m_customCaption->showForAWhile(qtTrId("ICONS_DONE"));
    if (result.folder.nameTaken)
        showNewFolder(result.folder.name(), m_ui->generateCustomButton);
}

void IconsViewController::showNewFolder(const QString &name, QWidget *fromView)
{
    showPopupWithTitle(qtTrId("ICONS_NEW_FOLDER_ALERT_TITLE"),
                       qtTrId("ICONS_NEW_FOLDER_ALERT_MESSAGE").replace(QStringLiteral("[FOLDER]"), name), fromView,
                       false);
}

// The options

void IconsViewController::iPhoneCheckboxChecked()
{
    togglePlatform(IconPlatform::IPhone);
    refreshSnippet();
}

void IconsViewController::iPadCheckboxChecked()
{
    togglePlatform(IconPlatform::IPad);
    refreshSnippet();
}

void IconsViewController::macCheckboxChecked()
{
    togglePlatform(IconPlatform::Mac);
}

void IconsViewController::androidCheckboxChecked()
{
    togglePlatform(IconPlatform::Android);
}

void IconsViewController::webtouchCheckboxChecked()
{
    togglePlatform(IconPlatform::WebTouch);
}

void IconsViewController::faviconCheckboxChecked()
{
    togglePlatform(IconPlatform::Favicon);
}

void IconsViewController::checkbox_rounded_ios7_checked()
{
    chooseCorners(m_ui->customIconRoundedCheckbox);
}

void IconsViewController::checkbox_rounded_ios6_checked()
{
    chooseCorners(m_ui->customIconRoundedSixCheckbox);
}

void IconsViewController::allPressed()
{
    const bool isAll = std::all_of(iconPlatforms.begin(), iconPlatforms.end(),
                                   [this](const PlatformIcons &icons) { return isChosen(icons.platform); });
    for (const PlatformIcons &icons : iconPlatforms) {
        // A click also updates the snippet.
        if (isChosen(icons.platform) == isAll)
            emit checkbox(icons.platform)->clicked();
    }
}

CornerMode IconsViewController::cornerMode() const
{
    if (m_ui->customIconRoundedCheckbox->isActive())
        return CornerMode::Ios7;
    return m_ui->customIconRoundedSixCheckbox->isActive() ? CornerMode::Ios6 : CornerMode::None;
}

void IconsViewController::togglePlatform(IconPlatform platform)
{
    CheckboxButton *box = checkbox(platform);
    box->setActive(!box->isActive());
    m_choices->at(static_cast<std::size_t>(platform)) = box->isActive();
}

CheckboxButton *IconsViewController::checkbox(IconPlatform platform) const
{
    switch (platform) {
    case IconPlatform::IPhone:
        return m_ui->iPhoneCheckbox;
    case IconPlatform::IPad:
        return m_ui->iPadCheckbox;
    case IconPlatform::Mac:
        return m_ui->macCheckbox;
    case IconPlatform::Android:
        return m_ui->androidCheckbox;
    case IconPlatform::WebTouch:
        return m_ui->webTouchCheckbox;
    case IconPlatform::Favicon:
        break;
    }
    return m_ui->favIconCheckbox;
}

bool IconsViewController::isChosen(IconPlatform platform) const
{
    return checkbox(platform)->isActive();
}

void IconsViewController::chooseCorners(RadioButton *clicked)
{
    const bool wasActive = clicked->isActive();
    deselectRadioButtons();
    clicked->setActive(!wasActive);
    editPreviewIcon();
}

void IconsViewController::deselectRadioButtons()
{
    m_ui->customIconRoundedSixCheckbox->setActive(false);
    m_ui->customIconRoundedCheckbox->setActive(false);
}

} // namespace lumora
