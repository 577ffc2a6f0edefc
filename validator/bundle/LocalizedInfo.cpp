// SPDX-License-Identifier: MIT
#include "LocalizedInfo.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// More than a bundle has languages.
constexpr qsizetype mostLanguages = 500;
constexpr QLatin1StringView extension(".lproj");

} // namespace

LocalizedInfo readLocalizedInfo(const QStringList &folders, const std::function<QByteArray(const QString &path)> &read)
{
    LocalizedInfo info;
    for (const QString &folder : folders) {
        if (!folder.endsWith(extension) || info.size() >= mostLanguages)
            continue;
        const QByteArray bytes = read(folder + u'/' + localizedInfoFile);
        if (const auto table = bytes.isEmpty() ? std::nullopt : readStringsTable(bytes))
            info.insert(folder.chopped(extension.size()), *table);
    }
    return info;
}

QString localizedText(const LocalizedInfo &info, const QString &key, const QString &developmentRegion)
{
    QStringList languages{developmentRegion, u"Base"_s, u"en"_s, u"English"_s};
    languages += info.keys();
    for (const QString &language : languages) {
        if (const QString text = info.value(language).value(key); !text.isEmpty())
            return text;
    }
    return {};
}

} // namespace lumora
