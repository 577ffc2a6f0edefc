// SPDX-License-Identifier: MIT
#include "ScreenshotReport.h"

#include "tool/style/DropDownStyle.h"
#include "tool/style/TableStyle.h"
#include "tool/style/WrappedRows.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QComboBox>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The list of stores.
enum StoreChoice { EitherStore, AppStoreOnly, PlayOnly };

constexpr int textSize = 13;
constexpr int indentation = 14;
constexpr int fieldHeight = 36;
constexpr int belowList = 8;
constexpr std::size_t rowLimit = 1000;

std::set<ScreenshotStore> storesOf(int choice)
{
    switch (choice) {
    case AppStoreOnly:
        return {ScreenshotStore::AppStore};
    case PlayOnly:
        return {ScreenshotStore::Play};
    default:
        return {};
    }
}

} // namespace

ScreenshotReport::ScreenshotReport(QWidget *parent)
    : QWidget(parent), m_stores(new QComboBox(this)), m_list(new QTreeWidget(this))
{
    m_stores->addItems({qtTrId("SHOT_EITHER_STORE"), u"App Store"_s, u"Google Play"_s});
    m_stores->setAccessibleName(qtTrId("SHOT_STORE"));
    m_stores->setAccessibleDescription(qtTrId("SHOT_STORE"));
    m_stores->setToolTip(qtTrId("SHOT_STORE"));
    m_stores->setFixedHeight(fieldHeight);
    frameDropDown(m_stores);
    styleDropDown(m_stores);
    m_list->setHeaderHidden(true);
    m_list->setIndentation(indentation);
    m_list->setAccessibleName(qtTrId("SHOT_FINDINGS"));
    styleTable(m_list, palette::placeholders);
    wrapRows(m_list);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, belowList);
    column->addWidget(m_stores, 0, Qt::AlignLeading);
    column->addWidget(m_list, 1);
    connect(m_stores, &QComboBox::currentIndexChanged, this, &ScreenshotReport::judge);
}

void ScreenshotReport::setScreenshots(const std::vector<ScreenshotFacts> &screenshots)
{
    m_screenshots = screenshots;
    judge();
}

void ScreenshotReport::judge()
{
    const auto findings = screenshotFindings(m_screenshots, storesOf(m_stores->currentIndex()));
    m_findings = std::ssize(findings);
    m_list->clear();
    m_rows.clear();
    for (std::size_t row = 0; row < std::min(findings.size(), rowLimit); ++row)
        addFinding(findings[row]);
    if (findings.size() > rowLimit) {
        auto *more = new QTreeWidgetItem(m_list);
        more->setText(0, qtTrId("SCALER_MORE").replace("[COUNT]"_L1, QString::number(findings.size() - rowLimit)));
    }
    m_list->expandAll();
    emit changed();
}

void ScreenshotReport::addFinding(const ScreenshotFinding &finding)
{
    const ScreenshotRule &rule = *finding.rule;
    QString text = qtTrId(severityKey(rule.severity)) + u": "_s + qtTrId(rule.titleKey);
    if (!finding.evidence.isEmpty())
        text += u" ("_s + finding.evidence.words() + u')';
    auto *row = new QTreeWidgetItem(rowOf(finding.path));
    row->setText(0, text);
    row->setToolTip(0, text);
    row->setForeground(0, rule.severity == ScreenshotSeverity::Error ? palette::errorDark : palette::chromeText);
    auto *fix = new QTreeWidgetItem(row);
    fix->setText(0, qtTrId(rule.fixKey));
    fix->setToolTip(0, fix->text(0));
}

QTreeWidgetItem *ScreenshotReport::rowOf(const QString &path)
{
    QTreeWidgetItem *&row = m_rows[path];
    if (row == nullptr) {
        row = new QTreeWidgetItem(m_list);
        // The folder that was dropped itself has no path in it.
        row->setText(0, path.isEmpty() ? qtTrId("SHOT_WHOLE") : path);
        row->setFont(0, latoBold(textSize));
    }
    return row;
}

QString ScreenshotReport::summary() const
{
    const auto counted = [](const char *one, const char *several, qsizetype count) {
        return count == 1 ? qtTrId(one) : qtTrId(several).replace("[COUNT]"_L1, QString::number(count));
    };
    const QString pictures = counted("PLACEHOLDER_ONE_PICTURE", "PLACEHOLDER_PICTURES", std::ssize(m_screenshots));
    const QString findings =
        m_findings == 0 ? qtTrId("SHOT_SOUND") : counted("SHOT_ONE_FINDING", "SHOT_COUNT_FINDINGS", m_findings);
    return pictures + u" · "_s + findings;
}

} // namespace lumora
