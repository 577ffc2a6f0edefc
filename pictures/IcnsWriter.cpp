// SPDX-License-Identifier: MIT
#include "IcnsWriter.h"

#include <QtEndian>

namespace lumora
{

namespace
{

constexpr qsizetype headerBytes = 8;

void appendHeader(QByteArray &file, const char *type, qsizetype contentBytes)
{
    const quint32 length = qToBigEndian(static_cast<quint32>(headerBytes + contentBytes));
    file.append(type, 4);
    file.append(reinterpret_cast<const char *>(&length), sizeof length);
}

} // namespace

QByteArray icnsFile(std::span<const IcnsMember> members)
{
    qsizetype bytes = 0;
    for (const IcnsMember &member : members)
        bytes += headerBytes + member.content.size();
    QByteArray file;
    file.reserve(headerBytes + bytes);
    appendHeader(file, "icns", bytes);
    for (const IcnsMember &member : members) {
        appendHeader(file, member.type, member.content.size());
        file.append(member.content);
    }
    return file;
}

} // namespace lumora
