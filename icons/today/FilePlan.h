// SPDX-License-Identifier: MIT
#pragma once

#include "Derivation.h"
#include "PictureRecipe.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

namespace lumora
{

/// What a file of a set holds.
enum class FileKind {
    Picture, ///< its one recipe's PNG file
    Ico,     ///< a Windows icon file of all its recipes
    Icns,    ///< a Mac icon file of all its recipes, in the order of `macSlots`
    Text,    ///< its bytes as they are
};

/// One file that is going to be written.
struct PlannedFile
{
    QString path; ///< below the folder that is written to
    FileKind kind = FileKind::Text;
    std::vector<PictureRecipe> pictures;
    QByteArray text;
};

/// The files of one or several sets, in the order in which they are written, and what had to be derived for them.
struct FilePlan
{
    QList<PlannedFile> files;
    QList<Derived> derived;
    /// Lines to put into files that are the user's own, each with the file it belongs into: "web/index.html: <link …>".
    QStringList linesToAdd;
    /// Files that hold the same resource in another format, below the folder that is written to.
    QStringList filesToRemove;

    void addPicture(const QString &path, const PictureRecipe &recipe)
    {
        files.append({path, FileKind::Picture, {recipe}, {}});
    }
    void addText(const QString &path, const QByteArray &text) { files.append({path, FileKind::Text, {}, text}); }
    /// Says it once, however many files it is true of.
    void note(Derivation derivation, const QString &detail = {})
    {
        if (!derived.contains(Derived{derivation, detail}))
            derived.append({derivation, detail});
    }
};

} // namespace lumora
