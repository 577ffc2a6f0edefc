// SPDX-License-Identifier: MIT
// The texts of the validator's pane about a package as a whole, and the actions on the report.
#include "ReasonView.h"
#include "ReportWords.h"
#include "ValidaterViewController.h"
#include "findings/FindingWords.h"
#include "findings/ReviewSections.h"
#include "tool/TimedCaption.h"
#include "ui_ValidaterViewController.h"
#include "validator/bundle/BundleImages.h"
#include "widgets/style/KeyboardFocus.h"
#include "widgets/style/Palette.h"
#include "words/LongWords.h"
#include "words/ShownFact.h"

#include <QAccessible>
#include <QApplication>
#include <QFileInfo>
#include <QPainter>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qreal missingIconRadius = 28;

/// The outline of an icon, shown in place of a missing one.
QPixmap missingIcon(qreal devicePixelRatio)
{
    QPixmap picture(QSize(appIconSize, appIconSize) * devicePixelRatio);
    picture.setDevicePixelRatio(devicePixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette::panelOutline, 2, Qt::DashLine));
    painter.drawRoundedRect(QRectF(1, 1, appIconSize - 2, appIconSize - 2), missingIconRadius, missingIconRadius);
    return picture;
}

void setColor(QLabel *label, const QColor &color)
{
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, color);
    label->setPalette(colors);
}

/// Whether a package exceeded a limit of this machine, and is not damaged.
bool isTooMuch(const Outcome &extraction)
{
    if (extraction)
        return false;
    const FailureCode code = extraction.failure().code;
    return code == FailureCode::TooLarge || code == FailureCode::CannotWrite || code == FailureCode::CannotCreateFolder;
}

QString inspectionNote(ReaderEnd end)
{
    switch (end) {
    case ReaderEnd::Stalled:
        return qtTrId("VALIDATER_READER_STALLED");
    case ReaderEnd::NotStarted:
        return qtTrId("VALIDATER_READER_NOT_STARTED");
    case ReaderEnd::NoApp:
    case ReaderEnd::Crashed:
    case ReaderEnd::Nonsense:
    case ReaderEnd::Stopped:
        break;
    }
    return qtTrId("VALIDATER_READER_CRASHED");
}

} // namespace

void ValidaterViewController::showAppIcon(const QImage &icon)
{
    QPixmap picture = QPixmap::fromImage(icon);
    picture.setDevicePixelRatio(static_cast<qreal>(picture.width()) / appIconSize);
    m_ui->appIconField->setPixmap(icon.isNull() ? missingIcon(view()->devicePixelRatioF()) : picture);
}

void ValidaterViewController::showSum()
{
    const CheckSum sum = sumOf(m_results);
    const bool isTooMuchToRead = isTooMuch(m_extraction.outcome);
    const bool good = !m_found && !m_inspectionEnd && !isTooMuchToRead && sum.failed == 0;
    m_ui->sumLabel->setText(isTooMuchToRead   ? qtTrId("VALIDATER_STOPPED_TITLE")
                            : m_found         ? qtTrId("VALIDATER_SUM_NO_PACKAGE")
                            : m_inspectionEnd ? qtTrId("VALIDATER_SUM_UNREAD")
                                              : sumText(sum));
    setColor(m_ui->sumLabel, good ? palette::successDark : palette::errorDark);
    m_ui->fileLabel->setText(shownFact(QFileInfo(m_facts.ipaPath).fileName()));

    const QString note = isTooMuchToRead   ? qtTrId("VALIDATER_STOPPED_MESSAGE")
                         : m_found         ? foundText(*m_found)
                         : m_inspectionEnd ? QString(inspectionNote(*m_inspectionEnd) + u'\n' + readerNote()).trimmed()
                                           : QString(noteText(m_facts, m_extraction) + u'\n' + readerNote()).trimmed();
    m_ui->noteLabel->setText(breakingLongWords(note));
    m_ui->noteLabel->setAccessibleName(note);
    m_ui->noteLabel->setVisible(!note.isEmpty());
    // A file that is not a package has neither facts nor verdicts to show.
    m_ui->factsPart->setVisible(hasFacts());
    m_ui->checksPart->setVisible(!m_found && !m_inspectionEnd);
    m_ui->reportArea->verticalScrollBar()->setValue(0);

    for (const CheckResult &result : std::as_const(m_results)) {
        ReasonView *view = reasonView(result.check);
        if (view != nullptr)
            view->setReason(reasonText(result, m_facts), result.sizes);
    }
    if (isTooMuchToRead)
        showValidatePopupWithTitle(qtTrId("VALIDATER_STOPPED_TITLE"), qtTrId("VALIDATER_STOPPED_MESSAGE"),
                                   m_ui->validatingTitle, true);
}

void ValidaterViewController::clearReport()
{
    m_ui->reportBody->showReview(ReportBody::Review::None);
    m_ui->noteLabel->hide();
    m_ui->noteLabel->setAccessibleName(QString());
    m_ui->factsPart->show();
    m_ui->checksPart->show();
    for (ReasonView *view :
         {m_ui->appIconsReason, m_ui->defaultImagesReason, m_ui->bundleIdentifierReason, m_ui->localizationsReason})
        view->setReason({}, {});
}

ReasonView *ValidaterViewController::reasonView(Check check) const
{
    switch (check) {
    case Check::AppIcons:
        return m_ui->appIconsReason;
    case Check::LaunchImages:
        return m_ui->defaultImagesReason;
    case Check::BundleIdentifier:
        return m_ui->bundleIdentifierReason;
    case Check::Localizations:
        return m_ui->localizationsReason;
    case Check::UrlSchemes:
    case Check::FacebookAppId:
        break;
    }
    return nullptr;
}

void ValidaterViewController::presentReport()
{
    const QString name = qtTrId("ACCESSIBLE_VALIDATER_REPORT")
                             .replace("[FILE]"_L1, m_ui->fileLabel->text())
                             .replace("[SUM]"_L1, m_ui->sumLabel->text());
    m_ui->reportArea->setAccessibleName(name);
    m_ui->reportArea->setAccessibleDescription(m_ui->noteLabel->accessibleName());
    const bool isFree = QApplication::focusWidget() == nullptr || hasKeyboard();
    if (isFree && view()->isVisible() && QApplication::activePopupWidget() == nullptr)
        m_ui->reportArea->setFocus(KeyboardFocus::reasonOfProgram());
    setReading(false);
    m_ui->dropView->setTakesWhileHidden(true);
    QAccessibleEvent alert(m_ui->reportArea, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QString ValidaterViewController::reportText() const
{
    QStringList lines{m_ui->fileLabel->text(), m_ui->sumLabel->text()};
    const QString note = m_ui->noteLabel->accessibleName();
    if (!note.isEmpty())
        lines << QString() << note;
    if (m_found)
        return lines.join(u'\n') + u'\n';
    if (hasFacts())
        lines << QString() << factLines(m_facts);
    lines << QString();
    if (m_review && !m_review->isOfOldTime)
        lines << findingTexts(m_review->findings(m_ignored)) << m_sections->lines() << QString()
              << qtTrId("REVIEW_CLASSIC_RULES");
    for (const CheckResult &result : m_results) {
        const QString reason = reasonText(result, m_facts);
        lines += verdictText(result);
        if (!reason.isEmpty())
            lines += u"  "_s + reason + (result.sizes.isEmpty() ? QString() : u' ' + result.sizes.join(u", "_s));
    }
    return lines.join(u'\n') + u'\n';
}

void ValidaterViewController::copyReportButtonPressed()
{
    services().clipboard.setText(reportText());
    m_copyCaption->showForAWhile(qtTrId("COPIED"));
}

void ValidaterViewController::checkAgainButtonPressed()
{
    foundIpaFile(QString(m_facts.ipaPath));
}

} // namespace lumora
