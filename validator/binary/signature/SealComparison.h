// SPDX-License-Identifier: MIT
#pragma once

#include "SealReader.h"
#include "validator/crypto/Digest.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace lumora
{

/// A file as it is in the bundle. What it refers to must outlive it.
struct BundleFile
{
    QStringView path;                     ///< in the bundle
    const FileDigests *digests = nullptr; ///< null if the content was not read
    QStringView linkTarget;
    bool isLink = false;
};

enum class SealState {
    NotThere,
    Unreadable,
    TooLarge, ///< longer than any that can be compared
    Compared,
};

/// The differences of a bundle from its seal, as sorted paths in the bundle, at most `SealComparison::mostListed` each.
struct SealFindings
{
    SealState state = SealState::NotThere;
    QStringList changed;
    QStringList missing;
    QStringList extra;
    qsizetype unlisted = 0; ///< differences beyond those
    bool endsEarly = false; ///< the seal has more missing files than can be listed, and was read up to there

    bool isEmpty() const { return changed.isEmpty() && missing.isEmpty() && extra.isEmpty(); }
};

/// The other input of the comparison.
struct SealSubject
{
    QString executable;                            ///< path of the main binary, which seals itself
    QMap<QString, QList<QByteArray>> nestedHashes; ///< from the path of nested code to its directories' short hashes
};

/// Compares the files of a bundle with its seal, `_CodeSignature/CodeResources`, which comes piece by piece. The memory
/// depends on the number of files, not on the seal.
class SealComparison final : private SealTaker
{
public:
    static constexpr qsizetype mostListed = 10'000;
    static constexpr qsizetype mostListedCharacters = 4 << 20; ///< of missing files

    /// Takes the files in the order of their paths, code unit by code unit.
    SealComparison(std::vector<BundleFile> files, SealSubject subject);

    /// The next bytes of the seal. False when no more are needed.
    bool take(QByteArrayView bytes) { return m_reader.take(bytes); }
    /// The result, after the last bytes.
    SealFindings findings();

private:
    /// What one list of the seal says.
    struct Side
    {
        bool exists = false;
        std::vector<quint8> marks;                               ///< by the files' numbers
        std::vector<std::pair<std::size_t, std::size_t>> nested; ///< ranges of files that nested code seals
        QStringList changedCode;
        QStringList missing;
        qsizetype missingCharacters = 0;
        bool missesMore = false; ///< than can be listed
        QList<SealRule> rules;
    };

    void takeList(SealList list) override;
    bool takeFile(SealList list, const QString &path, const SealedFile &file) override;
    void takeRule(SealList list, const SealRule &rule) override;

    Side &side(SealList list) { return m_sides[static_cast<std::size_t>(list)]; }
    static void addMissing(Side &side, const QString &path);
    std::size_t firstFrom(QStringView path) const;
    void takeCode(Side &side, const QString &path, const QByteArray &hash) const;
    void findChanged(const Side &side, SealFindings &findings) const;
    void findExtra(Side &side, SealFindings &findings) const;

    std::vector<BundleFile> m_files;
    SealSubject m_subject;
    std::array<Side, 2> m_sides;
    SealReader m_reader{*this};
};

} // namespace lumora
