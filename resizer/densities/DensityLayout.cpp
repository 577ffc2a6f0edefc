// SPDX-License-Identifier: MIT
#include "DensityLayout.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr auto bucketPlace = "{density}"_L1;

/// Splits "a/b/c.png" into its folder, stem and extension.
struct PathParts
{
    QString folder;
    QString stem;
    QString extension;

    explicit PathParts(const QString &path)
    {
        const qsizetype slash = path.lastIndexOf(u'/');
        const QString name = path.sliced(slash + 1);
        const qsizetype dot = name.lastIndexOf(u'.');
        folder = path.left(std::max<qsizetype>(slash, 0));
        stem = dot > 0 ? name.first(dot) : name;
        extension = dot > 0 ? name.sliced(dot + 1) : QString();
    }
};

QString joined(const QString &folder, const QString &name)
{
    return folder.isEmpty() ? name : QString(folder + u'/' + name);
}

// name@3x~ipad.png, as iOS, React Native and sites have it.

std::optional<DensityPlace> markedPlace(const QString &path)
{
    static const QRegularExpression marked(u"^(.+?)(?:@([0-9.]+x))?(~[a-z]+)?$"_s);
    const PathParts parts(path);
    const auto match = marked.match(parts.stem);
    if (!match.hasMatch())
        return std::nullopt;
    const QString text = match.captured(2);
    const std::optional<Density> density = text.isEmpty() ? Density{} : densityNamed(text);
    if (!density)
        return std::nullopt;
    return DensityPlace{parts.folder, match.captured(1), match.captured(3), parts.extension, *density, !text.isEmpty()};
}

QString markedPath(const DensityPlace &place, const Density &density, const QString &extension)
{
    const QString mark = density == Density{} ? QString() : QString(u'@' + densityText(density));
    return joined(place.folder, place.name + mark + place.suffix + u'.' + extension);
}

// res/drawable-night-xxhdpi/name.png

std::optional<DensityPlace> androidPlace(const QString &path)
{
    static const QRegularExpression bucket(
        u"^(.*/)?((?:drawable|mipmap)(?:-[A-Za-z0-9+]+)*?)-(ldpi|mdpi|tvdpi|hdpi|xhdpi|xxhdpi|xxxhdpi)((?:-[A-Za-z0-9+]+)*)$"_s);
    const PathParts parts(path);
    const auto match = bucket.match(parts.folder);
    if (!match.hasMatch())
        return std::nullopt;
    return DensityPlace{match.captured(1) + match.captured(2) + u'-' + bucketPlace + match.captured(4),
                        parts.stem,
                        {},
                        parts.extension,
                        *densityNamed(match.captured(3)),
                        true};
}

/// Drawings are not in the folders of the densities; those are made beside them, or in place of "drawable-anydpi".
std::optional<DensityPlace> androidDrawingPlace(const QString &path)
{
    static const QRegularExpression drawable(
        u"^(.*/)?((?:drawable|mipmap)(?:-[A-Za-z0-9+]+)*?)(?:-(?:nodpi|anydpi)(?:-v[0-9]+)?)?$"_s);
    if (const std::optional<DensityPlace> place = androidPlace(path))
        return place;
    const PathParts parts(path);
    const auto match = drawable.match(parts.folder);
    const QString folder =
        match.hasMatch() ? QString(match.captured(1) + match.captured(2)) : joined(parts.folder, u"drawable"_s);
    return DensityPlace{folder + u'-' + bucketPlace, parts.stem, {}, parts.extension, {}, false};
}

QString androidPath(const DensityPlace &place, const Density &density, const QString &extension)
{
    QString folder = place.folder;
    folder.replace(bucketPlace, bucketText(density));
    return joined(folder, place.name + u'.' + extension);
}

// assets/3.0x/name.png beside assets/name.png

std::optional<DensityPlace> flutterPlace(const QString &path)
{
    static const QRegularExpression folder(u"^(?:(.*)/)?([0-9]+(?:\\.[0-9]+)?)x$"_s);
    const PathParts parts(path);
    const auto match = folder.match(parts.folder);
    if (!match.hasMatch())
        return DensityPlace{parts.folder, parts.stem, {}, parts.extension, {}, false};
    const std::optional<Density> density = densityNamed(QString(QString::number(match.captured(2).toDouble()) + u'x'));
    if (!density)
        return std::nullopt;
    return DensityPlace{match.captured(1), parts.stem, {}, parts.extension, *density, true};
}

QString flutterPath(const DensityPlace &place, const Density &density, const QString &extension)
{
    const QString name = place.name + u'.' + extension;
    if (density == Density{})
        return joined(place.folder, name);
    QString number = densityText(density).chopped(1);
    if (!number.contains(u'.'))
        number += u".0"_s;
    return joined(place.folder, number + u"x/"_s + name);
}

constexpr std::array<Density, 3> iosDensities{{{3, 1}, {2, 1}, {1, 1}}};
constexpr std::array<Density, 7> androidDensities{{{4, 1}, {3, 1}, {2, 1}, {3, 2}, {4, 3}, {1, 1}, {3, 4}}};
constexpr std::array<Density, 5> androidUsual{{{4, 1}, {3, 1}, {2, 1}, {3, 2}, {1, 1}}};
constexpr std::array<Density, 5> flutterDensities{{{4, 1}, {3, 1}, {2, 1}, {3, 2}, {1, 1}}};
constexpr std::array<Density, 4> flutterUsual{{{4, 1}, {3, 1}, {2, 1}, {1, 1}}};
constexpr std::array<Density, 5> nativeDensities{{{4, 1}, {3, 1}, {2, 1}, {3, 2}, {1, 1}}};
// Below @4x comes @3x. The parts before and after the mark are the same in all of these.
constexpr std::array<Density, 5> markedDensities{{{4, 1}, {3, 1}, {2, 1}, {3, 2}, {1, 1}}};

constexpr std::array<DensityLayout, 5> layouts{{
    {"ios"_L1, markedDensities, iosDensities, markedPlace, markedPlace, markedPath},
    {"android"_L1, androidDensities, androidUsual, androidPlace, androidDrawingPlace, androidPath},
    {"flutter"_L1, flutterDensities, flutterUsual, flutterPlace, flutterPlace, flutterPath},
    {"react-native"_L1, nativeDensities, nativeDensities, markedPlace, markedPlace, markedPath},
    {"web"_L1, markedDensities, iosDensities, markedPlace, markedPlace, markedPath},
}};

} // namespace

std::span<const DensityLayout> densityLayouts()
{
    return layouts;
}

const DensityLayout *densityLayoutNamed(QStringView name)
{
    const auto *found =
        std::ranges::find_if(layouts, [name](const DensityLayout &layout) { return name == layout.name; });
    return found == layouts.end() ? nullptr : found;
}

} // namespace lumora
