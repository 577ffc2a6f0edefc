// SPDX-License-Identifier: MIT
#include "ReviewSections.h"

#include "FindingWords.h"
#include "SizeBar.h"
#include "tool/style/LabelStyle.h"
#include "validator/reports/PackageJson.h"
#include "validator/words/LongWords.h"
#include "validator/words/ShownFact.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QGridLayout>
#include <QJsonArray>
#include <QLabel>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int headingSize = 15;
constexpr int textSize = 13;
constexpr int buttonHeight = 32;
/// Rows that a section shows; the saved report has all.
constexpr qsizetype mostRows = 20;

QLabel *heading(const QString &text)
{
    auto *label = new QLabel(text);
    styleLabel(label, latoBold(headingSize), palette::chromeText);
    return label;
}

/// The last step of the path.
QString nameOf(const QString &path)
{
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

QString bundleText(const ReviewedBundle &bundle)
{
    QStringList texts{bundleKindText(bundle.kind)};
    if (!bundle.identifier.isEmpty())
        texts += bundle.identifier;
    if (!bundle.version.isEmpty())
        texts += qtTrId("REVIEW_VERSION").replace("[VERSION]"_L1, bundle.version);
    if (!bundle.minimumSystem.isEmpty())
        texts += qtTrId("REVIEW_MINIMUM").replace("[VERSION]"_L1, bundle.minimumSystem);
    if (!bundle.isSigned)
        texts += qtTrId("REVIEW_SIGNATURE_NONE");
    return texts.join(u", "_s);
}

QString manifestText(const ReviewedManifest &manifest)
{
    QStringList texts{manifest.tracks ? qtTrId("REVIEW_TRACKS") : qtTrId("REVIEW_TRACKS_NOT")};
    if (manifest.collectedDataTypes > 0)
        texts += qtTrId("REVIEW_COLLECTS").replace("[COUNT]"_L1, QLocale().toString(manifest.collectedDataTypes));
    for (auto each = manifest.reasons.begin(); each != manifest.reasons.end(); ++each)
        texts += each.key() + u" ("_s + each.value().join(u", "_s) + u')';
    return texts.join(u", "_s);
}

template <typename Item, typename Word> NamedValues rowsOf(const QList<Item> &items, Word word)
{
    NamedValues rows;
    for (const Item &item : items.first(std::min(mostRows, items.size())))
        rows.append({nameOf(item.path), word(item)});
    if (items.size() > mostRows)
        rows.append(
            {QString(), qtTrId("REVIEW_MORE").replace("[COUNT]"_L1, QLocale().toString(items.size() - mostRows))});
    return rows;
}

} // namespace

ReviewSections::ReviewSections(QWidget *parent)
    : QWidget(parent), m_column(new QVBoxLayout(this)), m_sizes(new SizeBar), m_models(new IconButton)
{
    m_models->setText(qtTrId("REVIEW_MODELS"));
    m_models->setToolTip(qtTrId("REVIEW_MODELS_TIP"));
    m_models->setNormalColor(palette::chromeText);
    m_models->setHoverColor(palette::chromeTextDark);
    m_models->setActiveColor(palette::chromeTextDark);
    m_models->setFixedHeight(buttonHeight);
    connect(m_models, &IconButton::clicked, this, &ReviewSections::modelsWanted);
    m_column->setContentsMargins({});
    m_column->setSpacing(6);
    m_column->addWidget(heading(qtTrId("REVIEW_SIZES")));
    m_column->addWidget(m_sizes);
    m_column->addSpacing(10);
    m_column->addWidget(m_models, 0, Qt::AlignLeading);
    m_column->addStretch(1);
}

void ReviewSections::addSection(const QString &title, const NamedValues &values)
{
    if (values.isEmpty())
        return;
    m_lines << QString() << title;
    auto *column = qobject_cast<QVBoxLayout *>(m_facts->layout());
    column->addWidget(heading(title));
    auto *grid = new QGridLayout;
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(3);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 3);
    for (const auto &[name, value] : values) {
        const int row = grid->rowCount();
        const QString shown = shownFact(value);
        auto *valueLabel = new QLabel(breakingLongWords(shown));
        styleLabel(valueLabel, latoRegular(textSize), palette::chromeText);
        valueLabel->setAccessibleName(name.isEmpty() ? shown : QString(shownFact(name) + u": "_s + shown));
        valueLabel->setWordWrap(true);
        if (name.isEmpty()) {
            grid->addWidget(valueLabel, row, 0, 1, 2, Qt::AlignTop);
        } else {
            auto *nameLabel = new QLabel(breakingLongWords(shownFact(name)));
            styleLabel(nameLabel, latoBold(textSize), palette::chromeText);
            nameLabel->setWordWrap(true);
            grid->addWidget(nameLabel, row, 0, Qt::AlignTop);
            grid->addWidget(valueLabel, row, 1, Qt::AlignTop);
        }
        m_lines += u"  "_s + (name.isEmpty() ? QString() : shownFact(name) + u": "_s) + shown;
    }
    column->addLayout(grid);
    column->addSpacing(12);
}

NamedValues ReviewSections::signatureFacts(const PackageReview &review, const QDateTime &now) const
{
    const QJsonObject signature = review.json[u"signature"_s].toObject();
    const QJsonObject profile = review.json[u"profile"_s].toObject();
    NamedValues facts;
    const auto add = [&facts](const char *key, const QString &value) {
        if (!value.isEmpty())
            facts.append({qtTrId(key), value});
    };
    add("REVIEW_SIGNATURE", valueWord(signature[u"verdict"_s].toString()));
    add("REVIEW_SIGNER", signature[u"signer"_s].toString());
    add("REVIEW_TEAM", signature[u"team"_s].toString());
    if (profile.isEmpty()) {
        add("REVIEW_PROFILE", qtTrId("REVIEW_PROFILE_NONE"));
        return facts;
    }
    add("REVIEW_PROFILE", valueWord(profile[u"kind"_s].toString()));
    add("REVIEW_PROFILE_NAME", profile[u"name"_s].toString());
    add("REVIEW_PROFILE_TEAM", profile[u"team"_s].toString());
    add("REVIEW_EXPIRY", expiryText(QDateTime::fromString(profile[u"expires"_s].toString(), Qt::ISODate), now));
    if (const qsizetype devices = profile[u"devices"_s].toArray().size(); devices > 0)
        add("REVIEW_DEVICES", QLocale().toString(devices));
    return facts;
}

void ReviewSections::show(const PackageReview &review, const QDateTime &now)
{
    delete m_facts;
    m_lines.clear();
    m_facts = new QWidget;
    auto *column = new QVBoxLayout(m_facts);
    column->setContentsMargins({});
    column->setSpacing(4);
    addSection(qtTrId("REVIEW_SIGNING"), signatureFacts(review, now));
    addSection(qtTrId("REVIEW_BUNDLES"), rowsOf(review.bundles, &bundleText));
    NamedValues privacy = rowsOf(review.manifests, &manifestText);
    if (privacy.isEmpty())
        privacy.append({QString(), qtTrId("REVIEW_PRIVACY_NONE")});
    addSection(qtTrId("REVIEW_PRIVACY"), privacy);
    m_column->insertWidget(0, m_facts);
    m_sizes->setKinds(review.kinds);
    m_models->setVisible(review.demands.otherDevice.isEmpty());
    m_lines << QString() << qtTrId("REVIEW_SIZES") << u"  "_s + m_sizes->words();
}

} // namespace lumora
