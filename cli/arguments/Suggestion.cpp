// SPDX-License-Identifier: MIT
#include "Suggestion.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace lumora
{

namespace
{

/// The number of typing errors from one word to the other; two swapped neighbors count as one.
qsizetype slips(const QString &from, const QString &to)
{
    using Row = std::vector<qsizetype>;
    const auto width = static_cast<std::size_t>(to.size()) + 1;
    Row beforeLast(width);
    Row last(width);
    Row current(width);
    for (std::size_t column = 0; column < width; ++column)
        last[column] = static_cast<qsizetype>(column);
    for (qsizetype row = 1; row <= from.size(); ++row) {
        current[0] = row;
        for (qsizetype column = 1; column <= to.size(); ++column) {
            const auto at = static_cast<std::size_t>(column);
            const bool same = from[row - 1] == to[column - 1];
            current[at] = std::min({last[at] + 1, current[at - 1] + 1, last[at - 1] + (same ? 0 : 1)});
            if (row > 1 && column > 1 && from[row - 1] == to[column - 2] && from[row - 2] == to[column - 1])
                current[at] = std::min(current[at], beforeLast[at - 2] + 1);
        }
        std::swap(beforeLast, last);
        std::swap(last, current);
    }
    return last.back();
}

} // namespace

QStringList nearestWords(const QString &typed, const QStringList &words)
{
    constexpr qsizetype longestTyped = 64;
    if (typed.isEmpty() || typed.size() > longestTyped)
        return {};
    const QString lower = typed.toLower();
    // Short words allow fewer errors: with a third of its letters wrong, a word is another word.
    const qsizetype most = std::max<qsizetype>(1, typed.size() / 3);
    std::vector<std::pair<qsizetype, QString>> near;
    for (const QString &word : words) {
        const QString candidate = word.toLower();
        qsizetype count = slips(lower, candidate);
        constexpr qsizetype shortestBeginning = 3;
        if ((lower.size() >= shortestBeginning && candidate.startsWith(lower)) || lower.startsWith(candidate))
            count = std::min<qsizetype>(count, 1);
        if (count <= most + 1)
            near.emplace_back(count, word);
    }
    std::stable_sort(near.begin(), near.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    QStringList nearest;
    // A second word may have one error more than the nearest: "icon or icons".
    if (near.empty() || near.front().first > most)
        return nearest;
    for (const auto &[count, word] : near) {
        constexpr qsizetype mostOffered = 3;
        if (count <= near.front().first + 1 && nearest.size() < mostOffered && !nearest.contains(word))
            nearest << word;
    }
    return nearest;
}

} // namespace lumora
