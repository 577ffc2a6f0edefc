// SPDX-License-Identifier: MIT
#include "PlaceholderViewController.h"

#include "PlaceholderExport.h"
#include "foundation/LeadingInteger.h"
#include "placeholders/pane/TodayPlaceholderPane.h"
#include "placeholders/pane/TodayPlaceholders.h"
#include "tool/DropView.h"
#include "tool/TimedCaption.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/LabelStyle.h"
#include "ui_PlaceholderViewController.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <utility>

namespace lumora
{

namespace
{

QList<QSize> sizesOf(PlaceholderSet set)
{
    const auto sizes = placeholderSizes(set);
    return QList<QSize>(sizes.begin(), sizes.end());
}

} // namespace

PlaceholderViewController::PlaceholderViewController(const Services &services, QObject *parent)
    : ToolViewController(services, parent), m_ui(std::make_unique<Ui::PlaceholderViewController>())
{
    m_ui->setupUi(view());
    setUpAppearance();
    connect(m_ui->iosButton, &HoverButton::clicked, this, &PlaceholderViewController::iosButtonPressed);
    connect(m_ui->macButton, &HoverButton::clicked, this, &PlaceholderViewController::macButtonPressed);
    connect(m_ui->customButton, &HoverButton::clicked, this, &PlaceholderViewController::customButtonPressed);
    for (ZKTextField *field : {m_ui->customWidthTextField, m_ui->customHeightTextField}) {
        field->setContinuous(true);
        connect(field, &ZKTextField::action, this, &PlaceholderViewController::showCustomMiniature);
    }
    setUpResult(m_ui->resultView, palette::placeholders, palette::placeholdersBorder);
    setUpToday();
    createPopup();
}

PlaceholderViewController::~PlaceholderViewController() = default;

void PlaceholderViewController::setUpAppearance()
{
    const std::pair<QLabel *, const char *> headings[] = {{m_ui->titleLabel, "PLACEHOLDER_TITLE"},
                                                          {m_ui->customLabel, "PLACEHOLDER_CUSTOM"}};
    for (const auto &[label, key] : headings) {
        styleLabel(label, latoBold(25), palette::placeholders);
        label->setText(qtTrId(key));
    }
    const std::pair<QLabel *, const char *> titles[] = {{m_ui->iosTitle, "PLACEHOLDER_IOS_TITLE"},
                                                        {m_ui->macTitle, "PLACEHOLDER_MAC_TITLE"},
                                                        {m_ui->customTitle, "PLACEHOLDER_CUSTOM_TITLE"}};
    for (const auto &[label, key] : titles) {
        styleLabel(label, latoBold(15), palette::chromeText);
        label->setText(qtTrId(key));
    }
    const std::pair<QLabel *, const char *> subtitles[] = {{m_ui->iosSubtitle, "PLACEHOLDER_IOS_SUBTITLE"},
                                                           {m_ui->macSubtitle, "PLACEHOLDER_MAC_SUBTITLE"},
                                                           {m_ui->customSubtitle, "PLACEHOLDER_CUSTOM_SUBTITLE"},
                                                           {m_ui->settingsLabel, "PLACEHOLDER_SETTINGS"}};
    for (const auto &[label, key] : subtitles) {
        styleLabel(label, latoRegular(13), palette::chromeText);
        label->setText(qtTrId(key));
    }
    styleLabel(m_ui->timesLabel, latoBold(15), palette::chromeText);
    m_ui->timesLabel->setText(QStringLiteral("x"));

    setUpButton(m_ui->iosButton, qtTrId("PLACEHOLDER_IOS_SUBTITLE"));
    setUpButton(m_ui->macButton, qtTrId("PLACEHOLDER_MAC_SUBTITLE"));
    setUpButton(m_ui->customButton, qtTrId("PLACEHOLDER_CUSTOM_SUBTITLE"));
    m_ui->customWidthTextField->setPlaceholderString(qtTrId("PLACEHOLDER_WIDTH"));
    m_ui->customWidthTextField->setAccessibleName(qtTrId("PLACEHOLDER_WIDTH"));
    m_ui->customHeightTextField->setPlaceholderString(qtTrId("PLACEHOLDER_HEIGHT"));
    m_ui->customHeightTextField->setAccessibleName(qtTrId("PLACEHOLDER_HEIGHT"));

    m_ui->iosMiniature->setPictures(sizesOf(PlaceholderSet::Ios));
    m_ui->iosMiniature->setAccessibleName(qtTrId("PLACEHOLDER_IOS_SUBTITLE"));
    m_ui->macMiniature->setPictures(sizesOf(PlaceholderSet::Mac));
    m_ui->macMiniature->setAccessibleName(qtTrId("PLACEHOLDER_MAC_SUBTITLE"));
    m_ui->customMiniature->setAccessibleName(qtTrId("PLACEHOLDER_CUSTOM_SUBTITLE"));
}

void PlaceholderViewController::setUpToday()
{
    m_today = new TodayPlaceholders(services(), this);
    connect(m_today, &TodayPlaceholders::jobEnded, this, &PlaceholderViewController::jobEnded);
    connect(m_today, &TodayPlaceholders::messageWanted, this, &PlaceholderViewController::showPopupWithTitle);
    addToday([this](QWidget *pane) {
        QWidget *today = m_today->makePane(pane);
        m_today->pane()->dropView()->setDelegate(this);
        setUpResult(m_today->pane()->resultView(), palette::placeholders, palette::placeholdersBorder);
        return today;
    });
    // The classic side takes no files.
    connect(sides(), &PaneSides::shown, this,
            [this](ToolSide side) { m_today->pane()->dropView()->setEnabled(side == ToolSide::Today); });
}

bool PlaceholderViewController::takesFiles() const
{
    return sides()->side() == ToolSide::Today;
}

void PlaceholderViewController::browseButtonPressed()
{
    if (takesFiles() && m_today->pane() != nullptr)
        m_today->chooseScreenshots();
}

void PlaceholderViewController::paste()
{
    if (takesFiles())
        dropViewReceivedFiles(services().clipboard.files());
}

void PlaceholderViewController::dropViewReceivedFiles(const QStringList &files)
{
    if (m_today->pane() != nullptr)
        m_today->check(files);
}

void PlaceholderViewController::setUpButton(HoverButton *button, const QString &what)
{
    styleButton(button, qtTrId("GENERATE"), palette::placeholders, palette::placeholdersBorder);
    // Three buttons have the same text; the description distinguishes them.
    button->setAccessibleDescription(what);
    m_captions.insert(button, new TimedCaption([button](const QString &caption) { button->setText(caption); },
                                               qtTrId("GENERATE"), this));
}

void PlaceholderViewController::showCustomMiniature()
{
    const QSize size(leadingInteger(m_ui->customWidthTextField->string()),
                     leadingInteger(m_ui->customHeightTextField->string()));
    const bool accepted = isPlaceholderEdge(size.width()) && isPlaceholderEdge(size.height());
    m_ui->customMiniature->setPictures(accepted ? QList<QSize>{size} : QList<QSize>());
}

void PlaceholderViewController::iosButtonPressed()
{
    m_selectedButton = m_ui->iosButton;
    createiOSPlaceholders();
}

void PlaceholderViewController::macButtonPressed()
{
    m_selectedButton = m_ui->macButton;
    createMacPlaceholders();
}

void PlaceholderViewController::customButtonPressed()
{
    m_selectedButton = m_ui->customButton;
    m_ui->customWidthTextField->endEditing();
    m_ui->customHeightTextField->endEditing();
    if (acceptEdge(m_ui->customWidthTextField, m_customWidth) &&
        acceptEdge(m_ui->customHeightTextField, m_customHeight))
        createCustomPlaceholder();
}

bool PlaceholderViewController::acceptEdge(ZKTextField *field, int &edge)
{
    // An empty text counts as 0, which is refused, too.
    const int typed = leadingInteger(field->string());
    if (isPlaceholderEdge(typed)) {
        edge = typed;
        return true;
    }
    showPopupWithTitle(qtTrId("PLACEHOLDER_ALERT_TITLE"), qtTrId("PLACEHOLDER_ALERT_MESSAGE"), field, true);
    return false;
}

void PlaceholderViewController::createiOSPlaceholders()
{
    createPlaceholders(sizesOf(PlaceholderSet::Ios));
}

void PlaceholderViewController::createMacPlaceholders()
{
    createPlaceholders(sizesOf(PlaceholderSet::Mac));
}

void PlaceholderViewController::createCustomPlaceholder()
{
    createPlaceholders({QSize(m_customWidth, m_customHeight)});
}

void PlaceholderViewController::createPlaceholders(const QList<QSize> &sizes)
{
    m_saveImages.clear();
    for (const QSize &size : sizes)
        m_saveImages.push_back(placeholderWithSize(size, m_font));
    openChooseDestination();
}

void PlaceholderViewController::openChooseDestination()
{
    // The down-scaler uses the same prompt.
    services().folderChooser.chooseFolder(
        window(), {qtTrId("RESIZER_DESTINATION_PANEL"), m_savePath},
        [this, button = m_selectedButton](const QString &path) {
            m_savePath = path;
            saveImagesToDisk(button);
        },
        [this] { discardImages(); });
}

void PlaceholderViewController::discardImages()
{
    m_saveImages.clear();
}

void PlaceholderViewController::saveImagesToDisk(HoverButton *button)
{
    m_ui->resultView->clear();
    m_jobs.start(
        [this, button, pictures = std::exchange(m_saveImages, {}), savePath = m_savePath](const BackgroundJob &job) {
            const PlaceholderRun run = savePlaceholders(pictures, savePath);
            job.post([this, button, run] { finish(button, run); });
        });
}

void PlaceholderViewController::finish(HoverButton *button, const PlaceholderRun &run)
{
    if (TimedCaption *caption = m_captions.value(button))
        caption->showForAWhile(qtTrId("ALL_DONE"));
    jobEnded();
    // Before the message, which points at a button that the result moves.
    m_ui->resultView->setResult(resultOf(run, std::ssize(run.files)));
    if (run.folder.nameTaken)
        showPopupWithTitle(
            qtTrId("PLACEHOLDER_NEW_FOLDER_ALERT_TITLE"),
            qtTrId("PLACEHOLDER_NEW_FOLDER_ALERT_MESSAGE").replace(QStringLiteral("[FOLDER]"), run.folder.name()),
            button, false);
    // The user may have started another run meanwhile.
    if (m_selectedButton == button && m_saveImages.empty())
        m_selectedButton = nullptr;
}

} // namespace lumora
