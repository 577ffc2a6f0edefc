// SPDX-License-Identifier: MIT
#include "FoundContent.h"

#include "foundation/FileDescriptor.h"
#include "validator/archive/PackageView.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <array>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The bytes of a kind of file at a fixed place.
struct Mark
{
    qsizetype offset;
    QByteArrayView bytes;
    FoundKind kind;
};

template <std::size_t length> constexpr QByteArrayView bytes(const char (&text)[length])
{
    return QByteArrayView(text, static_cast<qsizetype>(length - 1));
}

constexpr std::array marks{
    Mark{0, bytes("PK\3\4"), FoundKind::BrokenArchive},
    Mark{0, bytes("PK\5\6"), FoundKind::EmptyArchive},
    Mark{0, bytes("\x89PNG\r\n\x1a\n"), FoundKind::Picture},
    Mark{0, bytes("\xff\xd8\xff"), FoundKind::Picture},
    Mark{0, bytes("GIF8"), FoundKind::Picture},
    Mark{0, bytes("icns"), FoundKind::Picture},
    Mark{0, bytes("II*\0"), FoundKind::Picture},
    Mark{0, bytes("MM\0*"), FoundKind::Picture},
    Mark{8, bytes("WEBP"), FoundKind::Picture},
    Mark{0, bytes("%PDF-"), FoundKind::Document},
    Mark{0, bytes("\x1f\x8b"), FoundKind::OtherArchive},
    Mark{0, bytes("BZh"), FoundKind::OtherArchive},
    Mark{0,
         bytes("\xfd"
               "7zXZ"),
         FoundKind::OtherArchive},
    Mark{0, bytes("7z\xbc\xaf\x27\x1c"), FoundKind::OtherArchive},
    Mark{0, bytes("Rar!\x1a\x07"), FoundKind::OtherArchive},
    Mark{0, bytes("\x28\xb5\x2f\xfd"), FoundKind::OtherArchive},
    Mark{0, bytes("xar!"), FoundKind::OtherArchive},
    Mark{257, bytes("ustar"), FoundKind::OtherArchive},
};

bool isText(const QByteArray &start)
{
    const bool steers = std::any_of(start.begin(), start.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < ' ' && c != '\t' && c != '\n' && c != '\r' && c != '\f' && c != '\x1b';
    });
    if (steers)
        return false;
    QStringDecoder decoder(QStringDecoder::Utf8); // a character that the start cuts in two is no error
    const QString text = decoder.decode(start);
    return !decoder.hasError();
}

FoundContent archiveWithoutApp(const PackageSource &archive)
{
    FoundContent found{FoundKind::ArchiveWithoutApp, {}, 0, archive.isFolder(u"Payload"_s)};
    const QStringList names = archive.names(found.hasPayload ? u"Payload"_s : QString());
    found.names = names.first(std::min(names.size(), FoundContent::mostNames));
    found.nameCount = names.size();
    return found;
}

FoundKind kindOf(FailureCode code)
{
    switch (code) {
    case FailureCode::NotFound:
        return FoundKind::Nothing;
    case FailureCode::IsFolder:
        return FoundKind::Folder;
    case FailureCode::NoPermission:
        return FoundKind::Unreadable;
    default:
        return FoundKind::NoOrdinaryFile;
    }
}

} // namespace

FoundKind kindOfBytes(const QByteArray &start)
{
    if (start.isEmpty())
        return FoundKind::EmptyFile;
    for (const Mark &mark : marks) {
        if (start.mid(mark.offset, mark.bytes.size()) == mark.bytes)
            return mark.kind;
    }
    return isText(start) ? FoundKind::Text : FoundKind::Data;
}

FoundContent foundContent(const QString &path)
{
    const Outcome openable = isArchiveFile(path);
    if (!openable)
        return {kindOf(openable.failure().code), {}, 0, false};
    const FileDescriptor file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    QByteArray start(foundContentBytes, Qt::Uninitialized);
    const auto length = readAt(file, 0, std::span(start.data(), static_cast<std::size_t>(start.size())));
    if (!file.valid() || !length)
        return {FoundKind::Unreadable, {}, 0, false};
    start.truncate(static_cast<qsizetype>(length.value()));
    // An archive may begin with any bytes, so its list of files is checked first.
    const auto archive = PackageView::open(path);
    if (archive && !archive.value()->entries().isEmpty())
        return archiveWithoutApp(*archive.value());
    if (archive && !archive.value()->failure())
        return {FoundKind::EmptyArchive, {}, 0, false};
    return {kindOfBytes(start), {}, 0, false};
}

} // namespace lumora
