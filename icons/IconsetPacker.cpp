// SPDX-License-Identifier: MIT
#include "IconsetPacker.h"

#include "IconCatalogue.h"
#include "foundation/WholeFile.h"
#include "pictures/IcnsWriter.h"
#include "pictures/PictureReader.h"

#include <QFile>
#include <QProcess>

#include <array>
#include <vector>

namespace lumora
{

namespace
{

/// The member types of the ten pictures, in the order of `MacIcons`.
constexpr std::array<const char *, MacIcons.size()> memberTypes = {"icp4", "ic11", "icp5", "ic12", "ic07",
                                                                   "ic13", "ic08", "ic14", "ic09", "ic10"};

/// "/x/icons.icns" for "/x/icons.iconset".
QString icnsPath(const QString &iconsetPath)
{
    const QString ending = QStringLiteral(".iconset");
    return (iconsetPath.endsWith(ending) ? iconsetPath.chopped(ending.size()) : iconsetPath) + QStringLiteral(".icns");
}

} // namespace

Result<QString> IconutilPacker::pack(const QString &iconsetPath) const
{
    QProcess tool;
    tool.setStandardInputFile(QProcess::nullDevice());
    tool.setStandardOutputFile(QProcess::nullDevice());
    tool.setStandardErrorFile(QProcess::nullDevice());
    tool.start(m_program, {QStringLiteral("-c"), QStringLiteral("icns"), iconsetPath});
    tool.waitForFinished(-1);
    const QString made = icnsPath(iconsetPath);
    if (!QFile::exists(made))
        return Failure{FailureCode::CannotWrite, made, {"DETAIL_MADE_NONE", {{"[PROGRAM]", m_program}}}};
    return made;
}

Result<QString> OwnIconsetPacker::pack(const QString &iconsetPath) const
{
    std::vector<IcnsMember> members;
    for (std::size_t index = 0; index < MacIcons.size(); ++index) {
        const QString path = iconsetPath + u'/' + QLatin1StringView(MacIcons[index].name);
        const Result<QByteArray> picture = readWholeFile(path, largestPictureFile);
        if (!picture)
            return Failure{FailureCode::CannotWrite, icnsPath(iconsetPath), {"DETAIL_IS_MISSING", {{"[FILE]", path}}}};
        members.push_back({memberTypes[index], picture.value()});
    }
    const Outcome written = writeWholeFile(icnsPath(iconsetPath), icnsFile(members));
    if (!written)
        return written.failure();
    return icnsPath(iconsetPath);
}

std::unique_ptr<IconsetPacker> systemIconsetPacker()
{
    const QString tool = QStringLiteral("/usr/bin/iconutil");
    if (QFile::exists(tool))
        return std::make_unique<IconutilPacker>(tool);
    return std::make_unique<OwnIconsetPacker>();
}

} // namespace lumora
