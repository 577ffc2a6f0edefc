// SPDX-License-Identifier: MIT
#include "ProjectSettings.h"

#include "foundation/WholeFile.h"

#include <QDir>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qint64 longestSettings = 4LL * 1024 * 1024;

/// A value without its quotation marks and the comment after it.
QString yamlText(const QString &value)
{
    static const QRegularExpression quoted(u"^(?:'([^']*)'|\"([^\"\\\\]*)\")(?:\\s+#.*)?$"_s);
    static const QRegularExpression comment(u"(?:^|\\s+)#.*$"_s);
    if (const QRegularExpressionMatch match = quoted.match(value); match.hasMatch())
        return match.captured(1) + match.captured(2);
    QString plain = value;
    plain.remove(comment);
    // What begins so is a list, a text of several lines, or a value given elsewhere.
    return !plain.isEmpty() && u"'\"[{|>&*!"_s.contains(plain.front()) ? QString() : plain;
}

} // namespace

QByteArray settingsFile(const QString &path)
{
    const Result<QByteArray> bytes = readWholeFile(path, longestSettings);
    return bytes ? bytes.value() : QByteArray();
}

QJsonObject jsonSettings(const QString &path)
{
    return QJsonDocument::fromJson(settingsFile(path)).object();
}

QMap<QString, QString> flatSettings(const QJsonObject &object)
{
    QMap<QString, QString> settings;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (entry->isString())
            settings[entry.key()] = entry->toString();
        const QJsonObject inner = entry->toObject();
        for (auto part = inner.begin(); part != inner.end(); ++part) {
            if (part->isString())
                settings[entry.key() + u'.' + part.key()] = part->toString();
        }
    }
    return settings;
}

QMap<QString, QString> yamlSettings(const QByteArray &text)
{
    static const QRegularExpression entry(u"^( *)([A-Za-z][A-Za-z0-9_-]*):(?:\\s+(.*))?$"_s);
    QMap<QString, QString> settings;
    QString outer;
    qsizetype innerIndent = 0;
    const QStringList lines = QString::fromUtf8(text).split(u'\n');
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = entry.match(line.endsWith(u'\r') ? line.chopped(1) : line);
        if (!match.hasMatch())
            continue;
        const qsizetype indent = match.capturedLength(1);
        const QString name = match.captured(2);
        const QString value = yamlText(match.captured(3).trimmed());
        if (indent == 0) {
            outer = name;
            innerIndent = 0;
        } else if (innerIndent == 0) {
            innerIndent = indent;
        }
        if (!value.isEmpty() && indent == innerIndent)
            settings[indent == 0 ? name : QString(outer + u'.' + name)] = value;
    }
    return settings;
}

QString pathWithin(const QString &named)
{
    const QString path = QDir::cleanPath(named);
    return path.isEmpty() || QDir::isAbsolutePath(path) || path == u"." || path == u".." || path.startsWith(u"../")
               ? QString()
               : path;
}

} // namespace lumora
