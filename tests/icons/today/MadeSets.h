// SPDX-License-Identifier: MIT
#pragma once

#include "TodayPictures.h"
#include "icons/today/Motifs.h"
#include "icons/today/PictureWorkshop.h"
#include "icons/today/TodayExport.h"
#include "pictures/PictureReader.h"
#include "pictures/png/PngHeader.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <optional>

namespace lumora
{

/// Color types of PNG files: color without and with an alpha channel.
constexpr int opaqueForm = 2;
constexpr int transparentForm = 6;

/// The sets that "today" names together.
inline QList<TodaySet> commonSets()
{
    QList<TodaySet> sets;
    for (const TodaySetInfo &info : todaySets) {
        if (info.isCommon)
            sets << info.set;
    }
    return sets;
}

/// Sets as they would be written; a file is made when it is asked for.
class MadeSets
{
public:
    MadeSets(const QList<TodaySet> &sets, const TodaySources &sources,
             const SetOptions &options = {QStringLiteral("App")}, MacForm macForm = MacForm::Body)
        : motifs(sources, macForm), m_workshop(motifs)
    {
        const Result<FilePlan> planned = planSets(sets, motifs, options);
        if (planned)
            plan = planned.value();
        else
            failure = planned.failure();
    }

    /// Empty for a file that is not planned.
    QByteArray content(const QString &path)
    {
        for (const PlannedFile &file : plan.files) {
            if (file.path == path)
                return plannedBytes(file, m_workshop).value();
        }
        return {};
    }
    QStringList files() const
    {
        QStringList paths;
        for (const PlannedFile &file : plan.files)
            paths << file.path;
        paths.sort();
        return paths;
    }
    QImage picture(const QString &name)
    {
        const Result<QImage> read = readPicture(content(name), name);
        return read ? read.value() : QImage();
    }
    PngHeader header(const QString &name) { return pngHeader(content(name)).value_or(PngHeader{}); }
    QJsonObject json(const QString &name) { return QJsonDocument::fromJson(content(name)).object(); }
    bool says(Derivation derivation) const
    {
        return std::any_of(plan.derived.begin(), plan.derived.end(),
                           [derivation](const Derived &one) { return one.derivation == derivation; });
    }

    Motifs motifs;
    FilePlan plan;
    std::optional<Failure> failure;

private:
    PictureWorkshop m_workshop;
};

} // namespace lumora
