// SPDX-License-Identifier: MIT
// usage: binary_facts FILE The facts of a Mach-O file as JSON, for comparison with other readers.
#include "validator/binary/macho/MachOReader.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QJsonArray namesJson(const QByteArrayList &names)
{
    QJsonArray array;
    for (const QByteArray &name : names)
        array += QString::fromUtf8(name);
    return array;
}

QString hexadecimal(quint64 number)
{
    return QString::number(number, 16);
}

QJsonObject segmentJson(const BinarySegment &segment)
{
    QJsonArray sections;
    for (const BinarySection &section : segment.sections)
        sections += QJsonArray{QString::fromLatin1(section.segment), QString::fromLatin1(section.name),
                               hexadecimal(section.address),         hexadecimal(section.size),
                               static_cast<qint64>(section.offset),  static_cast<qint64>(section.alignment)};
    return {{u"name"_s, QString::fromLatin1(segment.name)},  {u"address"_s, hexadecimal(segment.address)},
            {u"size"_s, hexadecimal(segment.size)},          {u"offset"_s, QString::number(segment.fileOffset)},
            {u"bytes"_s, QString::number(segment.fileSize)}, {u"sections"_s, sections}};
}

QJsonObject sliceJson(const BinarySlice &slice)
{
    QJsonArray targets;
    for (const BinaryTarget &target : slice.targets) {
        QJsonArray tools;
        for (const BuildTool &tool : target.tools)
            tools += QJsonArray{toolName(tool.tool), tool.version.text()};
        targets += QJsonObject{{u"platform"_s, platformName(target.platform)},
                               {u"minimum"_s, target.minimumOS.text()},
                               {u"sdk"_s, target.sdk.text()},
                               {u"tools"_s, tools}};
    }
    QJsonArray libraries;
    for (const LinkedLibrary &library : slice.libraries)
        libraries += QJsonArray{static_cast<int>(library.link), library.path, library.currentVersion.text(),
                                library.compatibilityVersion.text()};
    QJsonArray segments;
    for (const BinarySegment &segment : slice.segments)
        segments += segmentJson(segment);
    QJsonArray faults;
    for (const BinaryFault fault : slice.faults)
        faults += static_cast<int>(fault);
    QJsonObject json{{u"architecture"_s, slice.architecture},
                     {u"fileType"_s, fileTypeName(slice.fileType)},
                     {u"flags"_s, hexadecimal(slice.flags)},
                     {u"targets"_s, targets},
                     {u"identity"_s, slice.identity},
                     {u"libraries"_s, libraries},
                     {u"runPaths"_s, QJsonArray::fromStringList(slice.runPaths)},
                     {u"segments"_s, segments},
                     {u"imported"_s, namesJson(slice.importedSymbols)},
                     {u"defined"_s, namesJson(slice.definedSymbols)},
                     {u"classes"_s, namesJson(slice.objectiveCClasses)},
                     {u"selectors"_s, namesJson(slice.objectiveCSelectors)},
                     {u"faults"_s, faults}};
    if (slice.uuid)
        json[u"uuid"_s] = slice.uuid->toString(QUuid::WithoutBraces).toUpper();
    if (slice.encryption)
        json[u"encryption"_s] =
            QJsonArray{static_cast<qint64>(slice.encryption->offset), static_cast<qint64>(slice.encryption->size),
                       static_cast<qint64>(slice.encryption->id)};
    if (slice.codeSignature)
        json[u"codeSignature"_s] = QJsonArray{static_cast<qint64>(slice.codeSignature->offset),
                                              static_cast<qint64>(slice.codeSignature->size)};
    return json;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    QFile file(QFile::decodeName(argv[1]));
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    const uchar *bytes = file.map(0, file.size());
    const auto facts = readMachO(QByteArrayView(bytes, bytes == nullptr ? 0 : file.size()));
    if (!facts)
        return 1;
    QJsonArray slices;
    for (const BinarySlice &slice : facts->slices)
        slices += sliceJson(slice);
    std::fputs(QJsonDocument(slices).toJson().constData(), stdout);
    return 0;
}
