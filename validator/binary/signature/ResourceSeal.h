// SPDX-License-Identifier: MIT
#pragma once

#include "validator/crypto/Digest.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace lumora
{

/// The seal's entry for one file.
struct SealedFile
{
    QByteArray sha1;
    QByteArray sha256;
    QByteArray codeHash;   ///< for nested code: the short hash of its code directory
    QString linkTarget;    ///< of a link
    bool optional = false; ///< the file may be missing
};

/// A rule about which files are sealed.
struct SealRule
{
    QString pattern; ///< regular expression over the path in the bundle
    double weight = 1;
    bool omit = false;
};

/// The content of `_CodeSignature/CodeResources`.
struct ResourceSeal
{
    QMap<QString, SealedFile> files; ///< by path in the bundle; the newer list if there is one
    QList<SealRule> rules;           ///< rules of the same list
    bool hasNewList = false;         ///< false in old seals, which only have SHA-1
};

/// Empty when the bytes are not a seal, or have more rows than any real one.
std::optional<ResourceSeal> readResourceSeal(const QByteArray &bytes);

/// A file as it is in the bundle.
struct BundleFile
{
    std::optional<FileDigests> digests; ///< empty if the content was not read
    QString linkTarget;
    bool isLink = false;
};

/// The differences of a bundle from its seal, as sorted paths in the bundle.
struct SealFindings
{
    QStringList changed;
    QStringList missing;
    QStringList extra;

    bool isEmpty() const { return changed.isEmpty() && missing.isEmpty() && extra.isEmpty(); }
};

/// The other input of the comparison.
struct SealSubject
{
    QString executable;                            ///< path of the main binary, which seals itself
    QMap<QString, QList<QByteArray>> nestedHashes; ///< from the path of nested code to its directories' short hashes
};

/// Compares the files of a bundle, by path in the bundle, with its seal.
SealFindings compareWithSeal(const ResourceSeal &seal, const QMap<QStringView, BundleFile> &files,
                             const SealSubject &subject);

} // namespace lumora
