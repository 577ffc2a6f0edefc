// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace lumora
{

/// A seal has two lists of files and rules: new ones have SHA-256, old seals have only the other.
enum class SealList { Old, New };

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

/// Receives a seal row by row, in the order of the file.
class SealTaker
{
public:
    virtual ~SealTaker() = default;

    /// The list exists, perhaps without rows.
    virtual void takeList(SealList list) = 0;
    /// Returns false when no more rows are needed.
    virtual bool takeFile(SealList list, const QString &path, const SealedFile &file) = 0;
    virtual void takeRule(SealList list, const SealRule &rule) = 0;
};

/// How the reading of a seal ended.
enum class SealEnd {
    Whole,
    Stopped,  ///< the receiver needed no more
    NoSeal,   ///< no seal, or a damaged one
    TooLarge, ///< longer than `SealReader::mostBytes`, or of more rows than `SealReader::mostRows`
};

} // namespace lumora
