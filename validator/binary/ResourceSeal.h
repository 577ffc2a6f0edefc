// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace lumora
{

/// What the seal says of one file.
struct SealedFile
{
    QByteArray sha1;
    QByteArray sha256;
    QByteArray codeHash;   ///< of nested code: the short hash of its code directory
    QString linkTarget;    ///< of a link
    bool optional = false; ///< may be missing
};

/// A rule that says which files are sealed.
struct SealRule
{
    QString pattern; ///< regular expression over the path in the bundle
    double weight = 1;
    bool omit = false;
};

/// The content of `_CodeSignature/CodeResources`.
struct ResourceSeal
{
    QMap<QString, SealedFile> files; ///< by path in the bundle; the newer list where there is one
    QList<SealRule> rules;           ///< of the same list
    bool hasNewList = false;         ///< false in seals of old, which know SHA-1 only
};

/// Nothing when the bytes are no seal, or hold more rows than any real one.
std::optional<ResourceSeal> readResourceSeal(const QByteArray &bytes);

/// A file of a bundle, as it is found.
struct BundleFile
{
    QByteArray sha1; ///< empty where nobody took it
    QByteArray sha256;
    QString linkTarget;
    bool isLink = false;
};

/// How a bundle differs from its seal; paths in the bundle, in order.
struct SealFindings
{
    QStringList changed;
    QStringList missing;
    QStringList extra;

    bool isEmpty() const { return changed.isEmpty() && missing.isEmpty() && extra.isEmpty(); }
};

/// What the comparison knows besides the files.
struct SealSubject
{
    QString executable;                            ///< path of the main binary, which seals itself
    QMap<QString, QList<QByteArray>> nestedHashes; ///< path of nested code to the short hashes of its directories
};

SealFindings compareWithSeal(const ResourceSeal &seal, const QMap<QString, BundleFile> &files,
                             const SealSubject &subject);

} // namespace lumora
