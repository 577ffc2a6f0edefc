// SPDX-License-Identifier: MIT
#include "icons/IconExport.h"

#include "foundation/Log.h"
#include "pictures/PictureOperations.h"
#include "pictures/PictureReader.h"
#include "tests/doubles/FilesOnDisk.h"
#include "tests/pictures/TestPictures.h"

#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QStringList logged;

void keepLogLines(QtMsgType, const QMessageLogContext &context, const QString &line)
{
    if (qstrcmp(context.category, lumoraLog().categoryName()) == 0)
        logged << line;
}

const QList<IconPlatform> everyPlatform = {IconPlatform::IPhone,  IconPlatform::IPad,     IconPlatform::Mac,
                                           IconPlatform::Android, IconPlatform::WebTouch, IconPlatform::Favicon};

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

} // namespace

class IconExportTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void allPlatforms();
    void everyFileIsWhatTheOperationsMake();
    void iPhoneAndIPadKeepTheirOwnSmallIcon();
    void folderName_data();
    void folderName();
    void logLines();
    void platformsAreAskedOneByOne();
    void progressCountsEveryFile();
    void sameBytesOnEveryRun();
    void blockedFolder_data();
    void blockedFolder();
    void missingDestination();
    void missingSource();
    void customIcon_data();
    void customIcon();
    void customIconStopsWithoutItsFolder();
};

void IconExportTest::init()
{
    logged.clear();
    qInstallMessageHandler(keepLogLines);
}

void IconExportTest::allPlatforms()
{
    const QTemporaryDir folder;
    const IconExport result = generatePlatformIcons(requestFor(everyPlatform, folder.path()));
    QCOMPARE(result.folder, (ExportFolder{folder.filePath(u"icons"_s), false}));
    QVERIFY(result.failures().isEmpty());
    QCOMPARE(result.files.size(), 51);
    QCOMPARE(filesBelowFolder(folder.path()).size(), 52);
    std::size_t index = 0;
    for (const PlatformIcons &platform : iconPlatforms) {
        for (const IconEntry &icon : platform.icons) {
            const IconFile &file = result.files[static_cast<qsizetype>(index++)];
            QString path = folder.filePath(u"icons"_s) + QLatin1StringView(platform.folderSuffix);
            if (platform.platform == IconPlatform::Mac)
                path += u"/icons.iconset"_s;
            QCOMPARE(file.path, path + u'/' + QLatin1StringView(icon.name));
            QCOMPARE(file.size, icon.size);
            QCOMPARE(file.bytes, QFileInfo(file.path).size());
        }
    }
}

void IconExportTest::everyFileIsWhatTheOperationsMake()
{
    const QTemporaryDir folder;
    const PlatformIconsRequest request = requestFor(everyPlatform, folder.path());
    for (const IconFile &file : generatePlatformIcons(request).files) {
        const Result<QImage> picture = readPicture(file.path);
        QVERIFY(picture.ok());
        QCOMPARE(picture.value(), resizeImage(request.icon, file.size));
        QVERIFY(QImage(file.path, "png").hasAlphaChannel());
    }
}

void IconExportTest::iPhoneAndIPadKeepTheirOwnSmallIcon()
{
    const QTemporaryDir folder;
    (void)generatePlatformIcons(requestFor({IconPlatform::IPhone, IconPlatform::IPad}, folder.path()));
    for (const char *name : {"icons/iPhone/Icon-Small.png", "icons/iPad/Icon-Small.png"})
        QCOMPARE(QImage(folder.filePath(QString::fromLatin1(name))).size(), QSize(29, 29));
    QCOMPARE(QDir(folder.filePath(u"icons"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
             (QStringList{u"iPad"_s, u"iPhone"_s}));
}

void IconExportTest::folderName_data()
{
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("taken");
    const QStringList none;
    QTest::newRow("nothing there") << none << none << u"icons"_s << false;
    QTest::newRow("icons and icons_1") << QStringList{u"icons"_s, u"icons_1"_s} << none << u"icons_2"_s << true;
    QTest::newRow("icons_1 only") << QStringList{u"icons_1"_s} << none << u"icons"_s << false;
    QTest::newRow("a file called icons") << none << QStringList{u"icons"_s} << u"icons_1"_s << true;
    QTest::newRow("a gap") << QStringList{u"icons"_s, u"icons_2"_s} << none << u"icons_1"_s << true;
    QTest::newRow("a file called icons_1")
        << QStringList{u"icons"_s} << QStringList{u"icons_1"_s} << u"icons_2"_s << true;
}

void IconExportTest::folderName()
{
    QFETCH(QStringList, folders);
    QFETCH(QStringList, files);
    QFETCH(QString, name);
    QFETCH(bool, taken);
    const QTemporaryDir folder;
    for (const QString &taking : folders)
        QVERIFY(QDir(folder.path()).mkdir(taking));
    for (const QString &taking : files)
        QVERIFY(putFile(folder.filePath(taking), "x"));
    const IconExport platforms = generatePlatformIcons(requestFor({IconPlatform::Favicon}, folder.path()));
    QCOMPARE(platforms.folder, (ExportFolder{folder.filePath(name), taken}));
    QCOMPARE(filesBelowFolder(folder.filePath(name)).size(), 5);
    QCOMPARE(logged.contains(u"Folder exists!"_s), taken);
    for (const QString &taking : files)
        QCOMPARE(contentOfFile(folder.filePath(taking)), QByteArray("x"));
}

void IconExportTest::logLines()
{
    const QTemporaryDir folder;
    (void)generatePlatformIcons(requestFor(everyPlatform, folder.path()));
    QCOMPARE(logged, (QStringList{u"Export iPhone icons"_s, u"Export iPad icons"_s, u"Export mac icons"_s,
                                  u"iconsset: "_s + folder.filePath(u"icons/Mac/icons.iconset"_s),
                                  u"Export android icons"_s, u"Export web icons"_s, u"Export favicons icons"_s}));
}

void IconExportTest::platformsAreAskedOneByOne()
{
    const QTemporaryDir folder;
    PlatformIconsRequest request = requestFor({}, folder.path());
    QStringList events;
    // The choice changes while the export runs: iPad is dropped and the favicons are added during iPhone's files.
    QList<IconPlatform> boxes = {IconPlatform::IPhone, IconPlatform::IPad};
    request.expected = boxes;
    request.isChosen = [&](const PlatformIcons &platform) {
        events << u"asked "_s + QLatin1StringView(platform.property);
        return boxes.contains(platform.platform);
    };
    request.progress = [&](const IconProgress &progress) {
        boxes = {IconPlatform::IPhone, IconPlatform::Favicon};
        if (progress.file == 1 || progress.file == 11)
            events << u"file %1 of %2"_s.arg(progress.file).arg(progress.count);
    };
    const IconExport result = generatePlatformIcons(request);
    QCOMPARE(events,
             (QStringList{u"asked iPhoneIcons"_s, u"file 1 of 22"_s, u"asked iPadIcons"_s, u"asked MacIcons"_s,
                          u"asked AndroidIcons"_s, u"asked WebTouchIcons"_s, u"asked FavIcons"_s, u"file 11 of 15"_s}));
    QCOMPARE(result.files.size(), 15);
}

void IconExportTest::progressCountsEveryFile()
{
    const QTemporaryDir folder;
    PlatformIconsRequest request = requestFor(everyPlatform, folder.path());
    QList<int> numbers;
    QStringList paths;
    request.progress = [&](const IconProgress &progress) {
        QCOMPARE(progress.count, 51);
        QVERIFY(!QFile::exists(progress.path));
        numbers << progress.file;
        paths << progress.path;
    };
    const IconExport result = generatePlatformIcons(request);
    QCOMPARE(numbers.size(), 51);
    for (int i = 0; i < 51; ++i) {
        QCOMPARE(numbers[i], i + 1);
        QCOMPARE(paths[i], result.files[i].path);
    }
}

void IconExportTest::sameBytesOnEveryRun()
{
    const QTemporaryDir folder;
    (void)generatePlatformIcons(requestFor(everyPlatform, folder.path()));
    // Not prepared ahead, so in another order.
    PlatformIconsRequest request = requestFor(everyPlatform, folder.path());
    request.expected.clear();
    (void)generatePlatformIcons(request);
    const QStringList files = filesBelowFolder(folder.filePath(u"icons"_s));
    QCOMPARE(files, filesBelowFolder(folder.filePath(u"icons_1"_s)));
    for (const QString &file : files)
        QCOMPARE(contentOfFile(folder.filePath(u"icons/"_s + file)),
                 contentOfFile(folder.filePath(u"icons_1/"_s + file)));
    QCOMPARE(contentOfFile(folder.filePath(u"icons/Web Touch/apple-touch-icon.png"_s)),
             contentOfFile(folder.filePath(u"icons/Web Touch/apple-touch-icon-precomposed.png"_s)));
}

void IconExportTest::blockedFolder_data()
{
    QTest::addColumn<QString>("blocked");
    QTest::addColumn<int>("written");
    QTest::addColumn<QStringList>("logs");
    QTest::newRow("a platform's folder") << u"Android"_s << 5 << QStringList{u"CreateError: File exists"_s};
    QTest::newRow("the Mac folder, said nowhere") << u"Mac"_s << 5 << QStringList{};
}

void IconExportTest::blockedFolder()
{
    QFETCH(QString, blocked);
    QFETCH(int, written);
    QFETCH(QStringList, logs);
    const QTemporaryDir folder;
    const IconPlatform platform = blocked == u"Mac"_s ? IconPlatform::Mac : IconPlatform::Android;
    PlatformIconsRequest request = requestFor({platform, IconPlatform::Favicon}, folder.path());
    const PlatformChoice chosen = request.isChosen;
    // The export folder is new, so the name can only be taken once the run has begun.
    request.isChosen = [&](const PlatformIcons &asked) {
        if (asked.platform == IconPlatform::IPhone)
            putFile(folder.filePath(u"icons/"_s + blocked), "x");
        return chosen(asked);
    };
    const IconExport result = generatePlatformIcons(request);
    QStringList errors = logged;
    errors.removeIf([](const QString &line) { return !line.startsWith(u"CreateError"_s); });
    QCOMPARE(errors, logs);
    int missing = 0;
    for (const IconFile &file : result.files) {
        missing += file.failure.has_value();
        QCOMPARE(QFile::exists(file.path), !file.failure.has_value());
    }
    QCOMPARE(result.files.size() - missing, written);
    QCOMPARE(missing, static_cast<int>(platform == IconPlatform::Mac ? MacIcons.size() : AndroidIcons.size()));
    QCOMPARE(filesBelowFolder(folder.filePath(u"icons/Favicon"_s)).size(), 5);
}

void IconExportTest::missingDestination()
{
    const QTemporaryDir folder;
    const IconExport result = generatePlatformIcons(requestFor(everyPlatform, folder.filePath(u"no/such/folder"_s)));
    QVERIFY(result.folderFailure.has_value());
    QCOMPARE(result.folderFailure->code, FailureCode::CannotCreateFolder);
    QCOMPARE(logged.first(), u"Folder error: No such file or directory"_s);
    QCOMPARE(result.files.size(), 51);
    for (const IconFile &file : result.files)
        QVERIFY(file.failure.has_value());
    QVERIFY(filesBelowFolder(folder.path()).isEmpty());
}

void IconExportTest::missingSource()
{
    const QTemporaryDir folder;
    PlatformIconsRequest request = requestFor({IconPlatform::Favicon}, folder.path());
    request.icon = QImage();
    const IconExport result = generatePlatformIcons(request);
    QCOMPARE(result.failures().size(), 5);
    for (const IconFile &file : result.files)
        QCOMPARE(file.failure, (Failure{FailureCode::CannotWrite, file.path, "DETAIL_EMPTY_PICTURE"}));
    QVERIFY(filesBelowFolder(folder.path()).isEmpty());
}

void IconExportTest::customIcon_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<CornerMode>("mode");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << 100 << CornerMode::None << u"icon_100x100.png"_s;
    QTest::newRow("iOS 6") << 100 << CornerMode::Ios6 << u"icon_100x100_iOS6.png"_s;
    QTest::newRow("iOS 7") << 57 << CornerMode::Ios7 << u"icon_57x57_iOS7.png"_s;
    QTest::newRow("smallest") << 1 << CornerMode::None << u"icon_1x1.png"_s;
    QTest::newRow("largest") << 1024 << CornerMode::Ios7 << u"icon_1024x1024_iOS7.png"_s;
}

void IconExportTest::customIcon()
{
    QFETCH(int, size);
    QFETCH(CornerMode, mode);
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QImage picture = testPicture(1024, 1024);
    const IconExport result = generateCustomIcon({picture, folder.path(), size, mode});
    QVERIFY(result.failures().isEmpty());
    QCOMPARE(filesBelowFolder(folder.path()), QStringList{u"icons/Custom/"_s + name});
    QCOMPARE(result.files.size(), 1);
    QCOMPARE(result.files[0].bytes, QFileInfo(result.files[0].path).size());
    QCOMPARE(readPicture(result.files[0].path).value(), resizeImage(picture, size, static_cast<int>(mode)));
    QVERIFY(logged.isEmpty());
}

void IconExportTest::customIconStopsWithoutItsFolder()
{
    const QTemporaryDir folder;
    const IconExport result =
        generateCustomIcon({testPicture(1024, 1024), folder.filePath(u"missing"_s), 64, CornerMode::None});
    QVERIFY(result.folderFailure.has_value());
    QCOMPARE(result.files.size(), 1);
    QVERIFY(result.files[0].failure.has_value());
    QCOMPARE(result.files[0].failure->code, FailureCode::CannotCreateFolder);
    QCOMPARE(logged,
             (QStringList{u"Folder error: No such file or directory"_s, u"CreateError: No such file or directory"_s}));
}

QTEST_GUILESS_MAIN(IconExportTest)
#include "IconExportTest.moc"
