// SPDX-License-Identifier: MIT
#include "SealComparison.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

enum Mark : quint8 { Sealed = 1, Changed = 2 };

constexpr qsizetype mostRules = 64;
constexpr qsizetype longestPattern = 512;

/// A compiled rule. The pattern is foreign, so it includes a limit for its search.
struct ReadyRule
{
    QRegularExpression expression;
    double weight;
    bool omit;
};

QList<ReadyRule> readyRules(const QList<SealRule> &rules)
{
    QList<ReadyRule> ready;
    for (const SealRule &rule : rules) {
        const QRegularExpression expression(u"(*LIMIT_MATCH=2000)"_s + rule.pattern);
        if (expression.isValid())
            ready += ReadyRule{expression, rule.weight, rule.omit};
    }
    // Of two rules with the same weight the excluding one wins, as it is the intended exception.
    std::ranges::stable_sort(ready, [](const ReadyRule &one, const ReadyRule &other) {
        return one.weight != other.weight ? one.weight > other.weight : one.omit && !other.omit;
    });
    return ready;
}

/// True when the matching rule of the largest weight excludes the path, or no rule matches.
bool isLeftOut(QStringView path, const QList<ReadyRule> &rules)
{
    for (const ReadyRule &rule : rules) {
        if (rule.expression.match(path).hasMatch())
            return rule.omit;
    }
    return true;
}

/// Files that are never sealed: the seal itself, the old link to it, the store's receipts.
bool isNeverSealed(const BundleFile &file, const SealSubject &subject)
{
    const bool isOldLink =
        file.path == "CodeResources"_L1 && file.isLink && file.linkTarget == "_CodeSignature/CodeResources"_L1;
    return file.path == subject.executable || isOldLink || file.path.startsWith("_CodeSignature/"_L1) ||
           file.path.startsWith("SC_Info/"_L1);
}

bool matches(const SealedFile &sealed, const BundleFile &file)
{
    if (file.isLink || !sealed.linkTarget.isEmpty())
        return file.isLink && file.linkTarget == sealed.linkTarget;
    if (file.digests == nullptr)
        return false;
    if (!sealed.sha256.isEmpty())
        return sealed.sha256 == QByteArrayView(file.digests->sha256);
    return sealed.sha1 == QByteArrayView(file.digests->sha1);
}

/// Adds the path if the list has room for it.
void list(QStringList &paths, const QString &path, SealFindings &findings)
{
    if (paths.size() < SealComparison::mostListed)
        paths += path;
    else
        ++findings.unlisted;
}

} // namespace

SealComparison::SealComparison(std::vector<BundleFile> files, SealSubject subject)
    : m_files(std::move(files)), m_subject(std::move(subject))
{
    for (Side &side : m_sides)
        side.marks.resize(m_files.size());
}

void SealComparison::takeList(SealList list)
{
    side(list).exists = true;
}

void SealComparison::takeRule(SealList list, const SealRule &rule)
{
    if (side(list).rules.size() < mostRules && rule.pattern.size() <= longestPattern)
        side(list).rules += rule;
}

void SealComparison::addMissing(Side &side, const QString &path)
{
    side.missingCharacters += path.size();
    side.missesMore =
        side.missesMore || side.missing.size() == mostListed || side.missingCharacters > mostListedCharacters;
    if (!side.missesMore)
        side.missing += path;
}

/// The number of the first file at the path or behind it.
std::size_t SealComparison::firstFrom(QStringView path) const
{
    const auto found = std::lower_bound(m_files.cbegin(), m_files.cend(), path,
                                        [](const BundleFile &file, QStringView each) { return file.path < each; });
    return static_cast<std::size_t>(found - m_files.cbegin());
}

bool SealComparison::takeFile(SealList list, const QString &path, const SealedFile &sealed)
{
    Side &side = this->side(list);
    if (!sealed.codeHash.isEmpty()) {
        takeCode(side, path, sealed.codeHash);
    } else {
        const std::size_t number = firstFrom(path);
        const bool isThere = number < m_files.size() && m_files[number].path == path;
        if (isThere)
            side.marks[number] |= matches(sealed, m_files[number]) ? Sealed : Sealed | Changed;
        else if (!sealed.optional)
            addMissing(side, path);
    }
    // The older list counts only when there is no newer one.
    return list == SealList::Old || !side.missesMore;
}

void SealComparison::takeCode(Side &side, const QString &path, const QByteArray &hash) const
{
    // Nested code seals its own files.
    const std::size_t first = firstFrom(QString(path + u'/'));
    const std::size_t end = firstFrom(QString(path + QChar(u'/' + 1)));
    if (first < end && (side.nested.empty() || side.nested.back() != std::pair(first, end)))
        side.nested.emplace_back(first, end);
    const auto hashes = m_subject.nestedHashes.constFind(path);
    if (hashes == m_subject.nestedHashes.cend())
        addMissing(side, path);
    else if (!hashes->contains(hash) && side.changedCode.size() < mostListed)
        side.changedCode += path;
}

void SealComparison::findChanged(const Side &side, SealFindings &findings) const
{
    for (std::size_t i = 0; i < m_files.size(); ++i) {
        if ((side.marks[i] & Changed) != 0)
            list(findings.changed, m_files[i].path.toString(), findings);
    }
    for (const QString &path : side.changedCode)
        list(findings.changed, path, findings);
    findings.changed.removeDuplicates();
    findings.changed.sort();
}

void SealComparison::findExtra(Side &side, SealFindings &findings) const
{
    const QList<ReadyRule> rules = readyRules(side.rules);
    std::sort(side.nested.begin(), side.nested.end());
    auto nested = side.nested.cbegin();
    std::size_t nestedEnd = 0;
    for (std::size_t i = 0; i < m_files.size(); ++i) {
        for (; nested != side.nested.cend() && nested->first <= i; ++nested)
            nestedEnd = std::max(nestedEnd, nested->second);
        const bool isInNestedCode = i < nestedEnd;
        if (isInNestedCode || (side.marks[i] & Sealed) != 0 || isNeverSealed(m_files[i], m_subject))
            continue;
        if (!isLeftOut(m_files[i].path, rules))
            list(findings.extra, m_files[i].path.toString(), findings);
    }
}

SealFindings SealComparison::findings()
{
    SealFindings findings;
    const SealEnd end = m_reader.finish();
    Side &best = side(side(SealList::New).exists ? SealList::New : SealList::Old);
    if (end == SealEnd::TooLarge || end == SealEnd::NoSeal || !best.exists) {
        findings.state = end == SealEnd::TooLarge ? SealState::TooLarge : SealState::Unreadable;
        return findings;
    }
    findings.state = SealState::Compared;
    findings.missing = std::move(best.missing);
    findings.endsEarly = best.missesMore;
    findings.missing.removeDuplicates();
    findings.missing.sort();
    findChanged(best, findings);
    // Of a seal that was not read to its end, nobody knows which files it lacks.
    if (!findings.endsEarly)
        findExtra(best, findings);
    return findings;
}

} // namespace lumora
