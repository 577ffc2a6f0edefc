// SPDX-License-Identifier: MIT
#include "ValidaterViewController.h"

#include "ReportWords.h"
#include "ValidatePopupContentView.h"
#include "tool/DropHighlight.h"
#include "tool/TimedCaption.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/PopoverStyle.h"
#include "tool/style/ToolTip.h"
#include "ui_ValidaterViewController.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QApplication>
#include <QFileInfo>
#include <QScrollBar>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int titleSize = 25;
constexpr int readingSize = 18;
constexpr int informationSize = 13;
constexpr int sumSize = 18;
/// The indentation of the checks, which aligns them with the facts' texts: the app's icon and the gap.
constexpr int checksIndent = 156;

} // namespace

ValidaterViewController::ValidaterViewController(const Services &services, QObject *parent)
    : ToolViewController(services, parent), m_ui(std::make_unique<Ui::ValidaterViewController>()),
      m_profileDecoder(systemProfileDecoder())
{
    m_ui->setupUi(view());
    awakeFromNib();
    connectActions();
    setOpacity(m_ui->validateInterface, 0);
    reset();
    createPopup();
    createValidatePopup();
}

ValidaterViewController::~ValidaterViewController()
{
    // A running reading ends at its next block; m_jobs waits for it.
    m_stop.request_stop();
    m_ui->dropView->setDelegate(nullptr);
}

void ValidaterViewController::awakeFromNib()
{
    m_ui->dropView->setDelegate(this);
    m_ui->dropView->setAccessibleName(qtTrId("ACCESSIBLE_VALIDATER_DROP"));
    new DropHighlight(m_ui->dropView, palette::validatorBorder);
    new DropHighlight(m_ui->dropView, palette::validatorBorder, m_ui->validateInterface);
    styleLabel(m_ui->informationText, latoRegular(informationSize), palette::chromeText);
    m_ui->informationText->setText(qtTrId("VALIDATER_BROWSE_INFO"));
    styleButton(m_ui->browseButton, qtTrId("BROWSE"), palette::chromeText, palette::chromeTextDark);
    m_ui->browseButton->setToolTip(tipWithKeys(qtTrId("TIP_BROWSE"), QKeySequence::Open));
    m_ui->dropView->setToolTip(tipWithKeys(qtTrId("TIP_DROP"), QKeySequence::Paste));

    styleLabel(m_ui->validatingTitle, latoBold(titleSize), palette::chromeText);
    m_ui->validatingTitle->setText(qtTrId("VALIDATER_VALIDATING"));
    styleButton(m_ui->resetButton, qtTrId("CLOSE"), u"button_icon_close"_s, palette::chromeText,
                palette::chromeTextDark);
    styleLabel(m_ui->readingLoaderField, latoRegular(readingSize), palette::chromeText);
    // It is above the report, which can be pressed during the fade.
    m_ui->readingLoaderField->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (QLabel *field : {m_ui->appNameField, m_ui->appVersionField, m_ui->appPlatformField, m_ui->appMinOSField,
                          m_ui->appBundleIDField, m_ui->appBuildField}) {
        styleLabel(field, latoRegular(fontSize), palette::chromeText);
        field->setWordWrap(true);
    }
    m_ui->appIconField->setAccessibleName(qtTrId("ACCESSIBLE_VALIDATER_APP_ICON"));
    setUpReport();

    m_ui->validAppIconsBox->setText(qtTrId("VALIDATER_VALIDAT_ICONS"));
    m_ui->validDefaultImagesBox->setText(qtTrId("VALIDATER_VALIDATE_DEFAULTS"));
    m_ui->validBundleIdentifier->setText(qtTrId("VALIDATER_VALIDATE_BUNDLE_ID"));
    m_ui->validReleaseBuild->setText(qtTrId("VALIDATER_VALIDATE_RELEASE"));
    m_ui->validLocalizationsBox->setText(qtTrId("VALIDATER_APP_LOCALIZATIONS"));
    m_ui->validURLSchemesBox->setText(qtTrId("VALIDATER_APP_URL_SCHEMES"));
    m_ui->validFacebookAppIDBox->setText(qtTrId("VALIDATER_APP_FACEBOOK_ID"));
}

void ValidaterViewController::setUpReport()
{
    styleButton(m_ui->copyReportButton, qtTrId("VALIDATER_COPY_REPORT"), u"button_icon_copy"_s, palette::chromeText,
                palette::chromeTextDark);
    m_copyCaption = new TimedCaption([this](const QString &caption) { m_ui->copyReportButton->setText(caption); },
                                     qtTrId("VALIDATER_COPY_REPORT"), this);
    styleButton(m_ui->checkAgainButton, qtTrId("VALIDATER_CHECK_AGAIN"), u"button_icon_reset"_s, palette::chromeText,
                palette::chromeTextDark);
    styleButton(m_ui->cancelButton, qtTrId("VALIDATER_CANCEL"), palette::chromeText, palette::chromeTextDark);
    styleLabel(m_ui->sumLabel, latoBold(sumSize), palette::chromeText);
    styleLabel(m_ui->fileLabel, latoRegular(informationSize), palette::chromeText);
    styleLabel(m_ui->noteLabel, latoRegular(fontSize), palette::chromeText);
    m_ui->reportArea->viewport()->setAutoFillBackground(false);
    m_ui->reportBody->setAutoFillBackground(false);
    m_ui->reportBody->setParts(m_ui->factsPart, m_ui->checksPart, checksIndent);
    m_ui->readingBar->setLightColor(palette::validator);
    m_ui->readingBar->setDarkColor(palette::validatorBorder);
    // The amount of remaining work is not known before the package is unpacked.
    m_ui->readingBar->setDoubleValue(m_ui->readingBar->maxValue());
    m_ui->readingBar->setAccessibleName(qtTrId("ACCESSIBLE_VALIDATER_PROGRESS"));
    setUpReview();
    for (QWidget *part : {static_cast<QWidget *>(m_ui->readingBar), static_cast<QWidget *>(m_ui->cancelButton)})
        setOpacity(part, 0);
}

void ValidaterViewController::connectActions()
{
    using Self = ValidaterViewController;
    connect(m_ui->browseButton, &HoverButton::clicked, this, &Self::browseButtonPressed);
    connect(m_ui->resetButton, &IconButton::clicked, this, &Self::resetButtonPressed);
    connect(m_ui->cancelButton, &HoverButton::clicked, this, &Self::cancelButtonPressed);
    connect(m_ui->copyReportButton, &IconButton::clicked, this, &Self::copyReportButtonPressed);
    connect(m_ui->checkAgainButton, &IconButton::clicked, this, &Self::checkAgainButtonPressed);
    connect(m_ui->validAppIconsBox, &CheckboxButton::clicked, this, &Self::checkboxAppIconsPressed);
    connect(m_ui->validDefaultImagesBox, &CheckboxButton::clicked, this, &Self::checkboxDefaultsPressed);
    connect(m_ui->validBundleIdentifier, &CheckboxButton::clicked, this, &Self::checkboxBundleIdentifierPressed);
    connect(m_ui->validReleaseBuild, &CheckboxButton::clicked, this, &Self::checkboxReleaseBuildPressed);
    connect(m_ui->validLocalizationsBox, &CheckboxButton::clicked, this, &Self::checkboxLocalizationsPressed);
    connect(m_ui->validURLSchemesBox, &CheckboxButton::clicked, this, &Self::checkboxURLSchemesPressed);
    connect(m_ui->validFacebookAppIDBox, &CheckboxButton::clicked, this, &Self::checkboxFacebookAppIDPressed);
}

void ValidaterViewController::createValidatePopup()
{
    m_validatePopupContentView = new ValidatePopupContentView;
    m_validatePopup = std::make_unique<SFBPopover>(m_validatePopupContentView);
    stylePopover(*m_validatePopup);
    connect(m_validatePopupContentView, &ValidatePopupContentView::closeButtonPressed, m_validatePopup.get(),
            [this] { m_validatePopup->closePopover(); });
    connect(this, &ToolViewController::leftView, m_validatePopup.get(), [this] { m_validatePopup->closePopover(); });
}

QList<QWidget *> ValidaterViewController::factViews() const
{
    return {m_ui->appNameField,  m_ui->appVersionField,  m_ui->appPlatformField,
            m_ui->appMinOSField, m_ui->appBundleIDField, m_ui->appBuildField};
}

QList<CheckboxButton *> ValidaterViewController::boxes() const
{
    return {m_ui->validAppIconsBox,     m_ui->validDefaultImagesBox, m_ui->validBundleIdentifier,
            m_ui->validReleaseBuild,    m_ui->validLocalizationsBox, m_ui->validURLSchemesBox,
            m_ui->validFacebookAppIDBox};
}

void ValidaterViewController::dropIpaFileFromDelegate(const QString &path)
{
    dropViewReceivedFiles({path});
}

void ValidaterViewController::dropViewReceivedFiles(const QStringList &files)
{
    if (files.size() >= 2) {
        showAlertWithTitle(qtTrId("VALIDATER_ONE_FILE_TITLE"), qtTrId("VALIDATER_ONE_FILE_MESSAGE"),
                           m_ui->informationText);
    } else if (files.isEmpty() || !isPackageName(files.first())) {
        showAlertWithTitle(qtTrId("VALIDATER_IPA_TITLE"), qtTrId("VALIDATER_IPA_MESSAGE"), m_ui->informationText);
    } else {
        foundIpaFile(QFileInfo(files.first()).absoluteFilePath());
    }
}

void ValidaterViewController::browseButtonPressed()
{
    openBrowsePanel();
}

void ValidaterViewController::openBrowsePanel()
{
    const FileRequest request{
        qtTrId("RESIZER_BROWSE_PANEL"), m_browsePath, {qtTrId("FILTER_IPA") + u" (*.ipa)"_s}, false};
    services().fileChooser.chooseFiles(window(), request, [this](const QStringList &paths) {
        QTimer::singleShot(browseDelay, this, [this, paths] { dropViewReceivedFiles(paths); });
    });
}

void ValidaterViewController::paste()
{
    const QStringList files = services().clipboard.files();
    if (!files.isEmpty())
        dropViewReceivedFiles(files);
}

void ValidaterViewController::readyForIpa()
{
    // First shows the views that can take the keyboard, then hides the one that has it.
    setReading(true);
    setOpacity(m_ui->dropView, 0);
    setOpacity(m_ui->validateInterface, 1);
    setOpacity(m_ui->readingLoaderField, 1);
    for (CheckboxButton *box : boxes()) {
        box->setEnabled(true);
        box->setActive(false);
    }
    m_ui->browseButton->setEnabled(false);
}

void ValidaterViewController::resetButtonPressed()
{
    reset();
}

void ValidaterViewController::cancelButtonPressed()
{
    m_stop.request_stop();
    reset();
}

void ValidaterViewController::setReading(bool reading)
{
    // The name fades out over the report, which can already be pressed.
    m_ui->readingView->setAttribute(Qt::WA_TransparentForMouseEvents, !reading);
    setOpacity(m_ui->readingBar, reading ? 1 : 0);
    setOpacity(m_ui->cancelButton, reading ? 1 : 0);
    if (reading)
        m_ui->readingBar->startAnimation();
    else
        m_ui->readingBar->stopAnimation();
}

bool ValidaterViewController::hasKeyboard() const
{
    const QWidget *focus = QApplication::focusWidget();
    return focus != nullptr && (focus == view() || view()->isAncestorOf(focus));
}

QList<QWidget *> ValidaterViewController::headViews() const
{
    return {m_ui->validatingTitle, m_ui->copyReportButton, m_ui->checkAgainButton,
            m_ui->resetButton,     m_ui->sumLabel,         m_ui->fileLabel};
}

void ValidaterViewController::reset()
{
    ++m_reading;
    m_fade.finish();
    for (SFBPopover *popover : {popupView(), m_validatePopup.get()}) {
        if (popover != nullptr && popover->isVisible())
            popover->closePopover();
    }
    const bool hadKeyboard = hasKeyboard();
    m_facts = PackageFacts();
    m_extraction = Extraction();
    m_results.clear();
    m_found.reset();
    m_review.reset();
    m_readerEnd.reset();
    m_inspectionEnd.reset();
    m_isReviewing = false;
    m_isJudged = false;
    clearReport();
    m_ui->appIconField->clear();
    m_ui->browseButton->setEnabled(true);
    m_ui->dropView->setTakesWhileHidden(false);
    setOpacity(m_ui->dropView, 1);
    if (hadKeyboard)
        m_ui->browseButton->setFocus(Qt::OtherFocusReason);
    setReading(false);
    for (QWidget *field : factViews() + headViews())
        setOpacity(field, 0);
    for (CheckboxButton *box : boxes()) {
        setOpacity(box, 0);
        box->setEnabled(false);
        box->setActive(false);
        box->setIdle();
        box->setAccessibleName(QString());
        box->setToolTip(QString());
    }
    for (QWidget *hidden :
         {static_cast<QWidget *>(m_ui->appIconField), static_cast<QWidget *>(m_ui->readingLoaderField),
          static_cast<QWidget *>(m_ui->reportArea), m_ui->validateInterface})
        setOpacity(hidden, 0);
    m_ui->readingLoaderField->clear();
    m_ui->readingLoaderField->setAccessibleName(QString());
}

StyledText ValidaterViewController::createAttributedTextFromString(const QString &string, const QFont &withFont,
                                                                   const QString &forString)
{
    StyledText text(string);
    text.setFontOfFirst(forString, withFont);
    return text;
}

} // namespace lumora
