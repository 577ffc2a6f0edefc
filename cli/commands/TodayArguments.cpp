// SPDX-License-Identifier: MIT
#include "TodayArguments.h"

#include "cli/arguments/Declaration.h"
#include "cli/console/CommandText.h"
#include "foundation/WholeFile.h"
#include "icons/IconSource.h"
#include "pictures/PictureReader.h"

#include <QFileInfo>

#include <optional>
#include <utility>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QString oneSize = u"one-size"_s;
const QString sizes = u"sizes"_s;
const QString defaultName = u"App"_s;

/// An opaque color by its name or its digits.
std::optional<QColor> colorOf(const QString &text)
{
    if (!QColor::isValidColor(text))
        return std::nullopt;
    const QColor color(text);
    return color.alpha() == 255 ? std::optional(color) : std::nullopt;
}

/// Reads sources one after the other until one cannot be read.
class SourceReading
{
public:
    SourceReading(SourceFit fit, TodayInput &input) : m_fit(fit), m_input(input) {}

    Artwork read(const QString &path)
    {
        if (path.isEmpty() || m_failure)
            return {};
        const Result<ReadSource> source = path == u"-" ? standardInput() : readTodaySource(path, m_fit);
        if (!source) {
            m_failure = source.failure();
            return {};
        }
        m_input.derived += source.value().derived;
        return source.value().artwork;
    }

    /// Refuses what an option was given.
    void refuse(const QString &option, const QString &value, const char *reasonKey)
    {
        if (!m_failure)
            m_failure = Failure{FailureCode::InvalidValue, option + u' ' + value, reasonKey};
    }
    const std::optional<Failure> &failure() const { return m_failure; }

private:
    Result<ReadSource> standardInput() const
    {
        const QString name = commandText("CLI_STANDARD_INPUT");
        const Result<QByteArray> bytes = readWholeDescriptor(STDIN_FILENO, name, largestPictureFile);
        return bytes ? readTodaySource(bytes.value(), name, m_fit) : Result<ReadSource>(bytes.failure());
    }

    SourceFit m_fit;
    TodayInput &m_input;
    std::optional<Failure> m_failure;
};

} // namespace

void TodayArguments::declareOn(Declaration &declaration)
{
    declaration.option("--name", &name, "NAME", "CLI_ICONS_NAME");
    declaration.option("--dark", &dark, "FILE", "CLI_ICONS_DARK");
    declaration.option("--tinted", &tinted, "FILE", "CLI_ICONS_TINTED");
    declaration.option("--foreground", &foreground, "FILE", "CLI_ICONS_FOREGROUND");
    declaration.option("--background", &background, "FILE|COLOR", "CLI_ICONS_BACKGROUND");
    declaration.option("--monochrome", &monochrome, "FILE", "CLI_ICONS_MONOCHROME");
    declaration.option("--layer", &layers, "FILE", "CLI_ICONS_LAYER");
    declaration.option("--flatten", &flatten, "COLOR", "CLI_ICONS_FLATTEN");
    declaration.flag("--fit", &fit, "CLI_ICONS_FIT");
    declaration.option("--ios-form", &iosForm, "FORM", "CLI_ICONS_IOS_FORM").words({oneSize, sizes});
    declaration.flag("--mac-full-bleed", &macFullBleed, "CLI_ICONS_MAC_FULL_BLEED");
}

QString TodayArguments::firstGiven() const
{
    const std::pair<QString, bool> given[] = {{u"--name"_s, !name.isEmpty()},
                                              {u"--dark"_s, !dark.isEmpty()},
                                              {u"--tinted"_s, !tinted.isEmpty()},
                                              {u"--foreground"_s, !foreground.isEmpty()},
                                              {u"--background"_s, !background.isEmpty()},
                                              {u"--monochrome"_s, !monochrome.isEmpty()},
                                              {u"--layer"_s, !layers.isEmpty()},
                                              {u"--flatten"_s, !flatten.isEmpty()},
                                              {u"--fit"_s, fit},
                                              {u"--ios-form"_s, !iosForm.isEmpty()},
                                              {u"--mac-full-bleed"_s, macFullBleed}};
    for (const auto &[option, isGiven] : given) {
        if (isGiven)
            return option;
    }
    return {};
}

SetOptions TodayArguments::setOptions() const
{
    return {name.isEmpty() ? defaultName : name, iosForm == sizes ? IosForm::Sizes : IosForm::OneSize};
}

Result<TodayInput> readTodayInput(const TodayArguments &arguments, const QString &icon)
{
    TodayInput input;
    TodaySources &sources = input.sources;
    SourceReading reading(arguments.sourceFit(), input);
    if (icon.isEmpty()) {
        const Result<QImage> picture = builtInIcon();
        if (!picture)
            return Failure{picture.failure().code, u"--example"_s, picture.failure().detail};
        sources.icon = Artwork(picture.value());
    } else {
        sources.icon = reading.read(icon);
    }
    sources.dark = reading.read(arguments.dark);
    sources.tinted = reading.read(arguments.tinted);
    sources.foreground = reading.read(arguments.foreground);
    sources.monochrome = reading.read(arguments.monochrome);
    sources.backgroundColor = colorOf(arguments.background);
    if (!sources.backgroundColor && !arguments.background.isEmpty() && !QFileInfo::exists(arguments.background))
        reading.refuse(u"--background"_s, arguments.background, "DETAIL_NO_COLOR_OR_FILE");
    else if (!sources.backgroundColor)
        sources.background = reading.read(arguments.background);
    for (const QString &layer : arguments.layers)
        sources.layers << reading.read(layer);
    sources.flatten = colorOf(arguments.flatten);
    if (!arguments.flatten.isEmpty() && !sources.flatten)
        reading.refuse(u"--flatten"_s, arguments.flatten, "DETAIL_NO_OPAQUE_COLOR");
    // It becomes the name of files and folders.
    if (arguments.name.contains(u'/') || arguments.name.startsWith(u'.'))
        reading.refuse(u"--name"_s, arguments.name, "DETAIL_NO_FILE_NAME");
    if (reading.failure())
        return *reading.failure();
    return input;
}

QStringList todaySetNames()
{
    QStringList names;
    for (const TodaySetInfo &info : todaySets)
        names << QLatin1StringView(info.commandName);
    return names << QLatin1StringView(commonSetsName);
}

QList<TodaySet> todaySetsNamed(const QStringList &names)
{
    QList<TodaySet> sets;
    for (const TodaySetInfo &info : todaySets) {
        if (names.contains(QLatin1StringView(info.commandName)) ||
            (info.isCommon && names.contains(QLatin1StringView(commonSetsName))))
            sets << info.set;
    }
    return sets;
}

} // namespace lumora
