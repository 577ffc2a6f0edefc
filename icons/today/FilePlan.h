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

/// What a file of a set contains.
enum class FileKind {
    Picture, ///< a PNG file of its only recipe
    Ico,     ///< a Windows icon file of all its recipes
    Icns,    ///< a Mac icon file of all its recipes, in the order of `macSlots`
    Text,    ///< its text, unchanged
};

/// A file to write.
struct PlannedFile
{
    QString path; ///< below the folder that is written to
    FileKind kind = FileKind::Text;
    std::vector<PictureRecipe> pictures;
    QByteArray text;
};

/// The files of one or several sets in the order of writing, and what is derived for them.
struct FilePlan
{
    QList<PlannedFile> files;
    QList<Derived> derived;
    /// Lines that the user adds to files of their own, each with the name of its file: "web/index.html: <link …>".
    QStringList linesToAdd;
    /// Files that hold the same resource in another format, below the folder that is written to.
    QStringList filesToRemove;

    void addPicture(const QString &path, const PictureRecipe &recipe)
    {
        files.append({path, FileKind::Picture, {recipe}, {}});
    }
    void addText(const QString &path, const QByteArray &text) { files.append({path, FileKind::Text, {}, text}); }
    /// Records a derivation once, even if it holds for many files.
    void note(Derivation derivation, const QString &detail = {})
    {
        if (!derived.contains(Derived{derivation, detail}))
            derived.append({derivation, detail});
    }
};

} // namespace lumora
