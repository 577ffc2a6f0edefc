// SPDX-License-Identifier: MIT
#include "XcodeSettings.h"

#include "foundation/WholeFile.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qint64 longestFile = 1024 * 1024;
constexpr int mostFiles = 64;
constexpr int deepestGroup = 64;
constexpr int longestValue = 1024;
/// Of one value: settings that name each other would never end.
constexpr int mostLookups = 100;

class SettingsFileReader
{
public:
    SettingValues read(const QString &path)
    {
        add(QFileInfo(path).absoluteFilePath());
        return m_values;
    }

private:
    void add(const QString &path)
    {
        if (m_open.contains(path) || ++m_count > mostFiles)
            return;
        const Result<QByteArray> bytes = readWholeFile(path, longestFile);
        if (!bytes)
            return;
        m_open.insert(path);
        const QStringList lines = QString::fromUtf8(bytes.value()).split(u'\n');
        for (const QString &line : lines)
            addLine(line.section(u"//"_s, 0, 0).trimmed(), line.trimmed(), QFileInfo(path).path());
        m_open.remove(path);
    }

    /// A line without and with its comment; the path of an included file may look like one.
    void addLine(const QString &line, const QString &whole, const QString &folder)
    {
        static const QRegularExpression inclusion(u"^#include\\??\\s*\"([^\"]+)\""_s);
        static const QRegularExpression assignment(u"^([A-Za-z_][A-Za-z0-9_]*)\\s*=\\s*(.*)$"_s);
        if (const QRegularExpressionMatch match = inclusion.match(whole); match.hasMatch()) {
            const QString named = match.captured(1);
            add(QFileInfo(named).isAbsolute() ? named : QString(folder + u'/' + named));
        } else if (const QRegularExpressionMatch given = assignment.match(line); given.hasMatch()) {
            m_values[given.captured(1)] = given.captured(2);
        }
    }

    SettingValues m_values;
    QSet<QString> m_open;
    int m_count = 0;
};

/// Fills in the settings that a value names.
class Expansion
{
public:
    /// The levels that count first come first.
    explicit Expansion(const QList<SettingValues> &levels) : m_levels(levels) {}

    /// The value of a setting at a level or at one that counts less; nothing where there is no value or one of the
    /// settings in it is not known.
    std::optional<QString> valueOf(const QString &setting, qsizetype level = 0)
    {
        static const QRegularExpression reference(u"\\$(?:\\(([^()]*)\\)|\\{([^{}]*)\\})"_s);
        while (level < m_levels.size() && !m_levels[level].contains(setting))
            ++level;
        if (level >= m_levels.size() || ++m_lookups > mostLookups)
            return std::nullopt;
        QString value = m_levels[level][setting];
        while (value.contains(u'$')) {
            const QRegularExpressionMatch match = reference.match(value);
            if (!match.hasMatch() || value.size() > longestValue)
                return std::nullopt;
            const QString name = match.captured(1) + match.captured(2);
            const bool isLower = name == u"inherited" || name == setting;
            const std::optional<QString> part = isLower ? valueOf(setting, level + 1) : valueOf(name);
            if (!part)
                return std::nullopt;
            value.replace(match.capturedStart(), match.capturedLength(), *part);
        }
        return value;
    }

private:
    const QList<SettingValues> &m_levels;
    int m_lookups = 0;
};

SettingValues valuesOf(const QVariantMap &settings)
{
    SettingValues values;
    for (auto setting = settings.begin(); setting != settings.end(); ++setting)
        values[setting.key()] = setting.value().toString();
    return values;
}

} // namespace

SettingValues readSettingsFile(const QString &path)
{
    return SettingsFileReader().read(path);
}

XcodeSettings::XcodeSettings(QString folder, QVariantMap objects)
    : m_folder(std::move(folder)), m_objects(std::move(objects))
{
    QVariantMap project;
    for (auto entry = m_objects.begin(); entry != m_objects.end(); ++entry) {
        const QVariantMap group = entry.value().toMap();
        if (group[u"isa"_s].toString() == u"PBXProject")
            project = group;
        const QVariantList children = group[u"children"_s].toList();
        for (const QVariant &child : children)
            m_groups[child.toString()] = entry.key();
    }
    m_shared = levelsByName(project);
}

QStringList XcodeSettings::ofTarget(const QVariantMap &target, const QString &setting)
{
    return values(target, setting, false);
}

QStringList XcodeSettings::inherited(const QVariantMap &target, const QString &setting)
{
    return values(target, setting, true);
}

QVariantMap XcodeSettings::object(const QVariant &id) const
{
    return m_objects[id.toString()].toMap();
}

XcodeSettings::Levels XcodeSettings::levelsOf(const QVariantMap &configuration)
{
    QString file = pathOf(configuration[u"baseConfigurationReference"_s].toString());
    const QString named = configuration[u"baseConfigurationReferenceRelativePath"_s].toString();
    if (!named.isEmpty())
        file = pathOf(configuration[u"baseConfigurationReferenceAnchor"_s].toString()) + u'/' + named;
    if (!m_files.contains(file))
        m_files[file] = file.isEmpty() ? SettingValues() : readSettingsFile(file);
    return {valuesOf(configuration[u"buildSettings"_s].toMap()), m_files[file]};
}

QMap<QString, XcodeSettings::Levels> XcodeSettings::levelsByName(const QVariantMap &owner)
{
    QMap<QString, Levels> levels;
    const QVariantList configurations = object(owner[u"buildConfigurationList"_s])[u"buildConfigurations"_s].toList();
    for (const QVariant &id : configurations) {
        const QVariantMap configuration = object(id);
        levels[configuration[u"name"_s].toString()] = levelsOf(configuration);
    }
    return levels;
}

QStringList XcodeSettings::values(const QVariantMap &target, const QString &setting, bool isInherited)
{
    const QMap<QString, Levels> own = levelsByName(target);
    QStringList found;
    const QStringList names = (isInherited ? m_shared : own).keys();
    for (const QString &name : names) {
        const Levels first = own.value(name, Levels(2));
        const SettingValues known{{u"CONFIGURATION"_s, name}, {u"TARGET_NAME"_s, target[u"name"_s].toString()}};
        const Levels levels = first + m_shared.value(name) + Levels{known};
        const bool isOwn = first[0].contains(setting) || first[1].contains(setting);
        const std::optional<QString> value =
            isOwn != isInherited ? Expansion(levels).valueOf(setting) : std::optional<QString>();
        if (value && !value->isEmpty() && !found.contains(*value))
            found << *value;
    }
    return found;
}

QString XcodeSettings::pathOf(const QString &reference) const
{
    QString path;
    QString id = reference;
    for (int depth = 0; depth < deepestGroup; ++depth) {
        const QVariantMap entry = object(id);
        if (entry.isEmpty())
            return depth == 0 ? QString() : QString(m_folder + u'/' + path);
        const QString named = entry[u"path"_s].toString();
        if (!named.isEmpty())
            path = path.isEmpty() ? named : QString(named + u'/' + path);
        const QString base = entry[u"sourceTree"_s].toString();
        if (base == u"<absolute>")
            return path;
        if (base != u"<group>")
            return base == u"SOURCE_ROOT" ? QString(m_folder + u'/' + path) : QString();
        id = m_groups.value(id);
    }
    return {};
}

} // namespace lumora
