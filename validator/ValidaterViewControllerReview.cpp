// SPDX-License-Identifier: MIT
// What the store's rules say of the package in the validator's pane, and what the user does with it.
#include "ValidaterViewController.h"
#include "findings/FindingWords.h"
#include "findings/FindingsView.h"
#include "findings/ReviewSections.h"
#include "foundation/Version.h"
#include "foundation/WholeFile.h"
#include "tool/FailureText.h"
#include "tool/TimedCaption.h"
#include "tool/style/LabelStyle.h"
#include "ui_ValidaterViewController.h"
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"
#include "words/LongWords.h"

#include <QDateTime>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int headingSize = 18;

/// A name in the folder for two reports that replaces no file: "App report", "App report 2".
QString freeName(const QString &folder, const QString &package)
{
    const QString name = folder + u'/' + QFileInfo(package).completeBaseName() + u" report"_s;
    QString free = name;
    for (int number = 2; QFileInfo::exists(free + u".html"_s) || QFileInfo::exists(free + u".json"_s); ++number)
        free = name + u' ' + QString::number(number);
    return free;
}

Outcome writeReports(const PackageReview &review, const QString &name)
{
    const QByteArray page = htmlReport({review.page}, QString::fromLatin1(versionText));
    if (const Outcome outcome = writeWholeFile(name + u".html"_s, page); !outcome)
        return outcome;
    return writeWholeFile(name + u".json"_s, QJsonDocument(review.json).toJson());
}

} // namespace

void ValidaterViewController::setUpReview()
{
    m_findings = new FindingsView;
    m_sections = new ReviewSections;
    auto *heading = new QLabel(qtTrId("REVIEW_CLASSIC_RULES"));
    styleLabel(heading, latoBold(headingSize), palette::chromeText);
    m_ui->reportBody->setReviewParts(m_findings, m_sections, heading);
    // The checks come last, as they are seen.
    QWidget *before = m_sections->modelsButton();
    for (CheckboxButton *box : boxes()) {
        QWidget::setTabOrder(before, box);
        before = box;
    }
    m_saveCaption = new TimedCaption([this](const QString &caption) { m_findings->saveButton()->setText(caption); },
                                     qtTrId("FINDINGS_SAVE"), this);
    connect(m_findings, &FindingsView::ruleIgnored, this, [this](const QString &id) {
        m_ignored += id;
        showFindings();
        m_findings->restoreButton()->setFocus(Qt::OtherFocusReason);
    });
    connect(m_findings, &FindingsView::ignoredRestored, this, [this] {
        m_ignored.clear();
        showFindings();
    });
    connect(m_findings, &FindingsView::iconsWanted, this, &ValidaterViewController::passIconsOn);
    connect(m_findings, &FindingsView::saveWanted, this, &ValidaterViewController::saveReport);
    connect(m_sections, &ReviewSections::modelsWanted, this, [this] { emit modelsWanted(m_review->demands); });
}

void ValidaterViewController::startReview(const QString &path, quint64 number)
{
    if (services().readerProgram.isEmpty())
        return;
    m_isReviewing = true;
    m_ui->readingBar->setDoubleValue(0);
    m_readPercent = 0;
    const ReaderOrder order{services().readerProgram, path, services().readerPatience};
    m_reviewJobs.start([this, order, number, stop = m_stop.get_token()](const BackgroundJob &job) {
        const auto post = [&](std::function<void()> show) {
            job.post([this, number, show = std::move(show)] {
                if (m_reading == number)
                    show();
            });
        };
        const auto progress = [&](int perMille) { post([this, perMille] { showProgress(perMille); }); };
        post([this, review = reviewInProcess(order, stop, progress)] { takeReview(review); });
    });
}

void ValidaterViewController::showProgress(int perMille)
{
    constexpr double whole = 1000;
    m_ui->readingBar->setDoubleValue(m_ui->readingBar->maxValue() * perMille / whole);
    m_readPercent = perMille / 10;
    showReadingText();
    if (m_isJudged)
        m_ui->sumLabel->setText(withPercent(qtTrId("REVIEW_PENDING")));
}

void ValidaterViewController::showReadingText()
{
    m_ui->readingLoaderField->setText(breakingLongWords(withPercent(m_ui->readingLoaderField->accessibleName())));
}

QString ValidaterViewController::withPercent(const QString &text) const
{
    // The package may be read at once, and without a review nothing counts the reading.
    return m_isReviewing && m_readPercent > 0 ? QString(text + u" %1 %"_s.arg(m_readPercent)) : text;
}

void ValidaterViewController::takeReview(std::variant<PackageReview, ReaderEnd> review)
{
    m_isReviewing = false;
    // The rest of the work has no measure.
    m_ui->readingBar->setDoubleValue(m_ui->readingBar->maxValue());
    if (auto *answer = std::get_if<PackageReview>(&review))
        m_review = std::move(*answer);
    else
        m_readerEnd = std::get<ReaderEnd>(review);
    conclude();
}

void ValidaterViewController::conclude()
{
    if (!m_isJudged)
        return;
    if (isReviewPending()) {
        m_ui->sumLabel->setText(withPercent(qtTrId("REVIEW_PENDING")));
        return;
    }
    showSum();
    if (m_review && !m_found)
        showReview();
    presentReport();
}

void ValidaterViewController::showReview()
{
    m_sections->show(*m_review, QDateTime::currentDateTime());
    if (!m_review->isOfOldTime)
        showFindings();
    m_ui->reportBody->showReview(m_review->isOfOldTime ? ReportBody::Review::Old : ReportBody::Review::Today);
}

void ValidaterViewController::showFindings()
{
    m_findings->setIconNote(m_review->hasPackedIcon ? qtTrId("FINDINGS_PACKED_ICON") : QString());
    m_findings->show(m_review->findings(), m_ignored);
    const QList<Finding> findings = m_review->findings(m_ignored);
    m_ui->sumLabel->setText(findingSumText(findings));
    const bool isRefused = std::any_of(findings.begin(), findings.end(), [](const Finding &finding) {
        return finding.rule->severity == Severity::Error;
    });
    styleLabel(m_ui->sumLabel, m_ui->sumLabel->font(), isRefused ? palette::errorDark : palette::successDark);
}

QString ValidaterViewController::readerNote() const
{
    if (!m_readerEnd)
        return {};
    switch (*m_readerEnd) {
    case ReaderEnd::Crashed:
    case ReaderEnd::Nonsense:
        return qtTrId("REVIEW_READER_CRASHED");
    case ReaderEnd::Stalled:
        return qtTrId("REVIEW_READER_STALLED");
    case ReaderEnd::NotStarted:
        return qtTrId("REVIEW_READER_NOT_STARTED");
    case ReaderEnd::NoApp:
    case ReaderEnd::Stopped:
        break;
    }
    return {};
}

void ValidaterViewController::passIconsOn()
{
    if (m_review->largeIcon.isEmpty()) {
        emit iconsWanted({});
        return;
    }
    const QString path = services().workFolder + u'/' + QFileInfo(m_facts.ipaPath).completeBaseName() + u" icon.png"_s;
    m_reviewJobs.start([this, path, icon = m_review->largeIcon](const BackgroundJob &job) {
        const bool isWritten = writeWholeFile(path, icon).ok();
        job.post([this, path, isWritten] { emit iconsWanted(isWritten ? path : QString()); });
    });
}

void ValidaterViewController::saveReport()
{
    services().folderChooser.chooseFolder(window(), {qtTrId("FINDINGS_SAVE_PANEL"), m_savePath},
                                          [this](const QString &folder) { writeReport(folder); });
}

void ValidaterViewController::writeReport(const QString &folder)
{
    // The package may have been closed while the panel was open.
    if (!m_review)
        return;
    m_savePath = folder;
    m_reviewJobs.start([this, review = m_review->without(m_ignored),
                        name = freeName(folder, m_facts.ipaPath)](const BackgroundJob &job) {
        const Outcome written = writeReports(review, name);
        job.post([this, written] {
            if (written)
                m_saveCaption->showForAWhile(qtTrId("FINDINGS_SAVED"));
            else
                showAlertWithTitle(qtTrId("FINDINGS_NOT_SAVED"), failureReason(written.failure()),
                                   m_findings->saveButton());
        });
    });
}

} // namespace lumora
