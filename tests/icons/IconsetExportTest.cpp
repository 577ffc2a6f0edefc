// SPDX-License-Identifier: MIT
#include "icons/IconExport.h"

#include "icons/IconsetPacker.h"
#include "pictures/PictureOperations.h"
#include "pictures/PictureReader.h"
#include "tests/doubles/FilesOnDisk.h"
#include "tests/pictures/TestPictures.h"

#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

PlatformIconsRequest requestFor(const QList<IconPlatform> &platforms, const QString &savePath)
{
    static const QImage picture = testPicture(1024, 1024);
    PlatformIconsRequest request;
    request.icon = picture;
    request.savePath = savePath;
    request.expected = platforms;
    request.isChosen = [platforms](const PlatformIcons &platform) { return platforms.contains(platform.platform); };
    return request;
}

class RecordingPacker final : public IconsetPacker
{
public:
    Result<QString> pack(const QString &iconsetPath) const override
    {
        calls << iconsetPath;
        pictures = QDir(iconsetPath).entryList(QDir::Files).size();
        return Failure{FailureCode::CannotWrite, iconsetPath, u"refused"_s};
    }
    mutable QStringList calls;
    mutable qsizetype pictures = 0;
};

} // namespace

/// The Mac's half of an export: the folder of pictures, and the icon file that is packed from it.
class IconsetExportTest : public QObject
{
    Q_OBJECT

private slots:
    void macOnly();
    void macIconFileHoldsTheTenPictures();
    void packerIsGivenTheFilledIconset();
    void packerFailureIsRecordedOnly();
    void iconutilIsCalledAsItWants();
};

void IconsetExportTest::macOnly()
{
    const QTemporaryDir folder;
    const IconExport result = generatePlatformIcons(requestFor({IconPlatform::Mac}, folder.path()));
    QStringList wanted{u"icons/Mac/icons.icns"_s};
    for (const IconEntry &icon : MacIcons)
        wanted << u"icons/Mac/icons.iconset/"_s + QLatin1StringView(icon.name);
    wanted.sort();
    QCOMPARE(filesBelowFolder(folder.path()), wanted);
    QCOMPARE(result.icns, folder.filePath(u"icons/Mac/icons.icns"_s));
}

void IconsetExportTest::macIconFileHoldsTheTenPictures()
{
    const QTemporaryDir folder;
    PlatformIconsRequest request = requestFor({IconPlatform::Mac}, folder.path());
    const OwnIconsetPacker packer;
    request.packer = &packer;
    const QByteArray file = contentOfFile(generatePlatformIcons(request).icns);
    QCOMPARE(file.first(4), QByteArray("icns"));
    QCOMPARE(qFromBigEndian<quint32>(file.constData() + 4), static_cast<quint32>(file.size()));
    const QByteArrayList types = {"icp4", "ic11", "icp5", "ic12", "ic07", "ic13", "ic08", "ic14", "ic09", "ic10"};
    qsizetype at = 8;
    for (qsizetype index = 0; index < types.size(); ++index) {
        QCOMPARE(file.mid(at, 4), types[index]);
        const qsizetype length = qFromBigEndian<quint32>(file.constData() + at + 4);
        const QString picture = folder.filePath(u"icons/Mac/icons.iconset/"_s +
                                                QLatin1StringView(MacIcons[static_cast<std::size_t>(index)].name));
        QCOMPARE(file.mid(at + 8, length - 8), contentOfFile(picture));
        at += length;
    }
    QCOMPARE(at, file.size());
    // Our own reader takes the largest of them.
    const Result<QImage> back = readPicture(file, u"icns"_s);
    QVERIFY(back.ok());
    QCOMPARE(back.value(), resizeImage(request.icon, 1024));
}

void IconsetExportTest::packerIsGivenTheFilledIconset()
{
    const QTemporaryDir folder;
    PlatformIconsRequest request = requestFor({IconPlatform::Mac}, folder.path());
    const RecordingPacker packer;
    request.packer = &packer;
    (void)generatePlatformIcons(request);
    QCOMPARE(packer.calls, QStringList{folder.filePath(u"icons/Mac/icons.iconset"_s)});
    QCOMPARE(packer.pictures, 10);
}

void IconsetExportTest::packerFailureIsRecordedOnly()
{
    const QTemporaryDir folder;
    PlatformIconsRequest request = requestFor({IconPlatform::Mac, IconPlatform::Favicon}, folder.path());
    const RecordingPacker packer;
    request.packer = &packer;
    const IconExport result = generatePlatformIcons(request);
    QVERIFY(result.icns.isEmpty());
    QVERIFY(result.icnsFailure.has_value());
    QCOMPARE(result.failures().size(), 1);
    QCOMPARE(filesBelowFolder(folder.path()).size(), 15);
}

void IconsetExportTest::iconutilIsCalledAsItWants()
{
    const QTemporaryDir folder;
    // A replacement for the system's tool: it records its call and makes the file, but fails.
    const QString tool = folder.filePath(u"iconutil"_s);
    QVERIFY(putFile(tool,
                    "#!/bin/sh\nprintf '%s|' \"$@\" > \"$3/../called\"\necho made > \"${3%.iconset}.icns\"\nexit 3\n"));
    QVERIFY(QFile::setPermissions(tool, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    PlatformIconsRequest request = requestFor({IconPlatform::Mac}, folder.path());
    const IconutilPacker packer(tool);
    request.packer = &packer;
    const IconExport result = generatePlatformIcons(request);
    const QString iconset = folder.filePath(u"icons/Mac/icons.iconset"_s);
    QCOMPARE(contentOfFile(folder.filePath(u"icons/Mac/called"_s)), "-c|icns|" + iconset.toUtf8() + '|');
    QCOMPARE(result.icns, folder.filePath(u"icons/Mac/icons.icns"_s));

    const IconutilPacker missing(folder.filePath(u"no tool"_s));
    request.packer = &missing;
    QVERIFY(generatePlatformIcons(request).icnsFailure.has_value());
}

QTEST_GUILESS_MAIN(IconsetExportTest)
#include "IconsetExportTest.moc"
