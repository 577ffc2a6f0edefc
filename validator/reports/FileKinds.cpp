// SPDX-License-Identifier: MIT
#include "FileKinds.h"

#include "validator/rules/Wording.h"

#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct Kind
{
    QLatin1StringView name;
    QStringList endings;
};

const std::array<Kind, 7> &kindsByEnding()
{
    static const std::array<Kind, 7> kinds{
        {{"code"_L1, {u".dylib"_s}},
         {"catalogs"_L1, {u".car"_s}},
         {"pictures"_L1, {u".png"_s, u".jpg"_s, u".jpeg"_s, u".heic"_s, u".webp"_s, u".gif"_s, u".svg"_s, u".pdf"_s}},
         {"sounds"_L1, {u".mp3"_s, u".m4a"_s, u".caf"_s, u".wav"_s, u".aif"_s, u".aiff"_s, u".mp4"_s, u".mov"_s}},
         {"interfaces"_L1, {u".nib"_s, u".storyboardc"_s}},
         {"languages"_L1, {u".strings"_s, u".stringsdict"_s, u".loctable"_s}},
         {"fonts"_L1, {u".ttf"_s, u".otf"_s, u".ttc"_s}}}};
    return kinds;
}

QString kindOf(const QString &path, const QSet<QString> &binaries)
{
    if (binaries.contains(path))
        return u"code"_s;
    if (path.contains(u"/_CodeSignature/") || path.endsWith(u"embedded.mobileprovision") || path.contains(u"/SC_Info/"))
        return u"signing"_s;
    for (const Kind &kind : kindsByEnding()) {
        if (std::ranges::any_of(kind.endings,
                                [&path](const QString &ending) { return path.endsWith(ending, Qt::CaseInsensitive); }))
            return kind.name;
    }
    return path.contains(u".storyboardc/") ? u"interfaces"_s : u"others"_s;
}

} // namespace

QStringList fileKinds()
{
    QStringList names;
    for (const Kind &kind : kindsByEnding())
        names += kind.name;
    return names + QStringList{u"signing"_s, u"others"_s};
}

QString fileKindText(const QString &kind)
{
    static constexpr std::pair<QLatin1StringView, const char *> names[] = {
        {"code"_L1, "REVIEW_FILES_CODE"},
        {"catalogs"_L1, "REVIEW_FILES_CATALOGS"},
        {"pictures"_L1, "REVIEW_FILES_PICTURES"},
        {"sounds"_L1, "REVIEW_FILES_SOUNDS"},
        {"interfaces"_L1, "REVIEW_FILES_INTERFACES"},
        {"languages"_L1, "REVIEW_FILES_LANGUAGES"},
        {"fonts"_L1, "REVIEW_FILES_FONTS"},
        {"signing"_L1, "REVIEW_FILES_SIGNING"},
    };
    for (const auto &[name, key] : names) {
        if (kind == name)
            return worded(key);
    }
    return worded("REVIEW_FILES_OTHERS");
}

FileTotals totalsOf(const PackageContents &contents)
{
    QSet<QString> binaries;
    for (const PackageBinary &binary : contents.binaries)
        binaries += binary.path;
    FileTotals totals;
    for (const auto &[path, size] : contents.files) {
        for (const QString &kind : {kindOf(path, binaries), QString()}) {
            FileTotal &total = totals[kind];
            ++total.files;
            total.bytes += size;
        }
    }
    return totals;
}

} // namespace lumora
