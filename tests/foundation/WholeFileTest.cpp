// SPDX-License-Identifier: MIT
#include "foundation/WholeFile.h"
#include "foundation/PendingFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <csignal>
#include <memory>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

const QByteArray oldBytes = "what the user had";
const QByteArray newBytes = "what is written now, somewhat longer";

bool put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray get(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

QStringList entries(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

/// Limits the size of this process's files, which has the effect of a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

private:
    rlimit m_before{};
    void (*m_handler)(int) = nullptr;
};

} // namespace

class WholeFileTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }

    void readsAFileOfUpToTheLimit_data()
    {
        QTest::addColumn<qsizetype>("size");
        QTest::addColumn<qint64>("limit");
        QTest::addColumn<bool>("fits");
        QTest::newRow("empty") << qsizetype{0} << qint64{0} << true;
        QTest::newRow("one byte") << qsizetype{1} << qint64{100} << true;
        QTest::newRow("just the limit") << qsizetype{100} << qint64{100} << true;
        QTest::newRow("a byte more") << qsizetype{101} << qint64{100} << false;
        QTest::newRow("more than one step of reading") << qsizetype{200'000} << qint64{200'000} << true;
        QTest::newRow("more than one step, a byte more") << qsizetype{200'001} << qint64{200'000} << false;
    }
    void readsAFileOfUpToTheLimit()
    {
        QFETCH(qsizetype, size);
        QFETCH(qint64, limit);
        QFETCH(bool, fits);
        QByteArray content(size, 'x');
        for (qsizetype i = 0; i < size; i += 7)
            content[i] = static_cast<char>(i);
        const QString path = m_folder->filePath(u"read"_s);
        QVERIFY(put(path, content));
        const auto whole = readWholeFile(path, limit);
        QCOMPARE(whole.ok(), fits);
        if (fits)
            QCOMPARE(whole.value(), content);
        else
            QCOMPARE(whole.failure().code, FailureCode::TooLarge);

        // A source without a known size is read up to the same limit.
        int ends[2] = {-1, -1};
        QVERIFY(::pipe(ends) == 0);
        std::jthread writer([&content, end = ends[1]] {
            qsizetype written = 0;
            for (ssize_t count = 1; written < content.size() && count > 0; written += count)
                count = ::write(end, content.constData() + written, static_cast<std::size_t>(content.size() - written));
            ::close(end);
        });
        const auto piped = readWholeDescriptor(ends[0], u"pipe"_s, limit);
        // Reads the rest, so that the writer ends.
        std::array<char, 4096> rest{};
        while (::read(ends[0], rest.data(), rest.size()) > 0) {
        }
        ::close(ends[0]);
        QCOMPARE(piped.ok(), fits);
        if (fits)
            QCOMPARE(piped.value(), content);
        else
            QCOMPARE(piped.failure().code, FailureCode::TooLarge);
    }

    void aFolderIsNoFile()
    {
        const auto whole = readWholeFile(m_folder->path(), 100);
        QVERIFY(!whole);
        QCOMPARE(whole.failure().code, FailureCode::IsFolder);
        QCOMPARE(whole.failure().detail.words(), QString());
    }

    void writesWhereTheNameLeads_data()
    {
        QTest::addColumn<QString>("existing");
        QTest::addColumn<QString>("link");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("holdsTheBytes");
        const QString none;
        QTest::newRow("a new file") << none << none << u"a.png"_s << u"a.png"_s;
        QTest::newRow("a name with blanks and umlauts") << none << none << u"ä b.png"_s << u"ä b.png"_s;
        QTest::newRow("the longest name") << none << none << QString(255, u'n') << QString(255, u'n');
        QTest::newRow("a file that is there") << u"a.png"_s << none << u"a.png"_s << u"a.png"_s;
        QTest::newRow("the longest name that is there")
            << QString(255, u'n') << none << QString(255, u'n') << QString(255, u'n');
        QTest::newRow("a link to a file") << u"a.png"_s << u"link"_s << u"link"_s << u"a.png"_s;
    }
    void writesWhereTheNameLeads()
    {
        QFETCH(QString, existing);
        QFETCH(QString, link);
        QFETCH(QString, written);
        QFETCH(QString, holdsTheBytes);
        if (!existing.isEmpty())
            QVERIFY(put(path(existing), oldBytes));
        if (!link.isEmpty())
            QVERIFY(QFile::link(path(existing), path(link)));
        QVERIFY(writeWholeFile(path(written), newBytes).ok());
        QCOMPARE(get(path(holdsTheBytes)), newBytes);
        QVERIFY(!QFileInfo(path(holdsTheBytes)).isSymLink());
        QCOMPARE(QFileInfo(path(written)).isSymLink(), !link.isEmpty());
        QCOMPARE(entries(m_folder->path()).size(), link.isEmpty() ? 1 : 2);
    }

    void namesTheReason_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<int>("error");
        QTest::newRow("no such folder") << u"missing/a.png"_s << ENOENT;
        QTest::newRow("a file in the folder's place") << u"file/a.png"_s << ENOTDIR;
        QTest::newRow("a folder in the file's place") << u"folder"_s << EISDIR;
        QTest::newRow("a name too long") << QString(256, u'n') << ENAMETOOLONG;
        QTest::newRow("a device that is full") << u"/dev/full"_s << ENOSPC;
    }
    void namesTheReason()
    {
        QFETCH(QString, written);
        QFETCH(int, error);
        QVERIFY(put(path(u"file"_s), oldBytes));
        QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
        const QString target = written.startsWith(u'/') ? written : path(written);
        const Outcome outcome = writeWholeFile(target, newBytes);
        QVERIFY(!outcome.ok());
        QCOMPARE(outcome.failure(), (Failure{FailureCode::CannotWrite, target, qt_error_string(error)}));
        QCOMPARE(entries(m_folder->path()), (QStringList{u"file"_s, u"folder"_s}));
        QCOMPARE(get(path(u"file"_s)), oldBytes);
    }

    void aFullDiskLeavesWhatWasThere_data()
    {
        QTest::addColumn<bool>("wasThere");
        QTest::newRow("nothing") << false;
        QTest::newRow("the user's file") << true;
    }
    void aFullDiskLeavesWhatWasThere()
    {
        QFETCH(bool, wasThere);
        if (wasThere)
            QVERIFY(put(path(u"a.png"_s), oldBytes));
        Outcome outcome = Done{};
        {
            const FileSizeLimit limit(8);
            outcome = writeWholeFile(path(u"a.png"_s), newBytes);
        }
        QVERIFY(!outcome.ok());
        QCOMPARE(outcome.failure().detail.words(), qt_error_string(EFBIG));
        QCOMPARE(entries(m_folder->path()), wasThere ? QStringList{u"a.png"_s} : QStringList{});
        if (wasThere)
            QCOMPARE(get(path(u"a.png"_s)), oldBytes);
    }

    void whatAKilledProcessLeftGoes()
    {
        QVERIFY(put(path(u"a.png"_s), oldBytes));
        QVERIFY(put(path(u".a.png.lumora-pending"_s), newBytes));
        QVERIFY(writeWholeFile(path(u"a.png"_s), newBytes).ok());
        QCOMPARE(entries(m_folder->path()), QStringList{u"a.png"_s});
        QCOMPARE(get(path(u"a.png"_s)), newBytes);
    }

    void aFileThatCannotTakeItsNameLeavesNothing()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"a.png"_s));
        {
            auto file = PendingFile::begin(QFile::encodeName(path(u"a.png"_s)));
            QVERIFY(file.ok());
            QVERIFY(file.value().write(newBytes).ok());
            // Only a file can be replaced by renaming.
            const Outcome published = file.value().publish();
            QVERIFY(!published.ok());
            QCOMPARE(published.failure().detail.words(), qt_error_string(EISDIR));
        }
        QCOMPARE(entries(m_folder->path()), QStringList{u"a.png"_s});
    }

    void whatAnotherProcessWritesStays()
    {
        QVERIFY(put(path(u"a.png"_s), oldBytes));
        const QString pending = path(u".a.png.lumora-pending"_s);
        QVERIFY(put(pending, "half"));
        const int other = ::open(QFile::encodeName(pending).constData(), O_RDONLY | O_CLOEXEC);
        QCOMPARE(::flock(other, LOCK_EX | LOCK_NB), 0);
        const Outcome outcome = writeWholeFile(path(u"a.png"_s), newBytes);
        ::close(other);
        QVERIFY(outcome.ok());
        QCOMPARE(get(path(u"a.png"_s)), newBytes);
        QCOMPARE(entries(m_folder->path()), (QStringList{u".a.png.lumora-pending"_s, u"a.png"_s}));
        QCOMPARE(get(pending), "half");
    }

    void whatIsNoFileUnderThePendingNameStays()
    {
        QVERIFY(put(path(u"a.png"_s), oldBytes));
        QVERIFY(put(path(u"b"_s), oldBytes));
        QVERIFY(QFile::link(path(u"b"_s), path(u".a.png.lumora-pending"_s)));
        QVERIFY(QDir(m_folder->path()).mkdir(u".a.png.lumora-pending.1"_s));
        QVERIFY(writeWholeFile(path(u"a.png"_s), newBytes).ok());
        QCOMPARE(get(path(u"a.png"_s)), newBytes);
        QCOMPARE(get(path(u"b"_s)), oldBytes);
        QCOMPARE(entries(m_folder->path()),
                 (QStringList{u".a.png.lumora-pending"_s, u".a.png.lumora-pending.1"_s, u"a.png"_s, u"b"_s}));
    }

    void keepsThePermissionsOfTheFileItReplaces()
    {
        QVERIFY(put(path(u"a.png"_s), oldBytes));
        QCOMPARE(::chmod(QFile::encodeName(path(u"a.png"_s)).constData(), 0604), 0);
        QVERIFY(writeWholeFile(path(u"a.png"_s), newBytes).ok());
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(path(u"a.png"_s)).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, 0604u);
    }

    void aNewFileHasThePermissionsThatTheUserWants()
    {
        const mode_t before = ::umask(027);
        const Outcome outcome = writeWholeFile(path(u"a.png"_s), newBytes);
        ::umask(before);
        QVERIFY(outcome.ok());
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(path(u"a.png"_s)).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, 0640u);
    }

    void onlyRegularFilesAreRead_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("limit");
        QTest::addColumn<int>("failure");
        QTest::newRow("a file") << u"a.png"_s << 100 << -1;
        QTest::newRow("a file as long as the limit") << u"a.png"_s << int(oldBytes.size()) << -1;
        QTest::newRow("a file beyond the limit")
            << u"a.png"_s << int(oldBytes.size()) - 1 << int(FailureCode::TooLarge);
        QTest::newRow("a link to a file") << u"link"_s << 100 << -1;
        QTest::newRow("a pipe without a writer") << u"pipe"_s << 100 << int(FailureCode::NotReadable);
        QTest::newRow("a device without an end") << u"/dev/zero"_s << 100 << int(FailureCode::NotReadable);
        QTest::newRow("a socket") << u"socket"_s << 100 << int(FailureCode::NotReadable);
        QTest::newRow("a folder") << u"folder"_s << 100 << int(FailureCode::IsFolder);
        QTest::newRow("nothing") << u"missing"_s << 100 << int(FailureCode::NotFound);
        QTest::newRow("a step that is a file") << u"a.png/b"_s << 100 << int(FailureCode::NotFound);
    }
    void onlyRegularFilesAreRead()
    {
        QFETCH(QString, name);
        QFETCH(int, limit);
        QFETCH(int, failure);
        QVERIFY(put(path(u"a.png"_s), oldBytes));
        QVERIFY(QFile::link(path(u"a.png"_s), path(u"link"_s)));
        QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
        QCOMPARE(::mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
        QCOMPARE(::mknod(QFile::encodeName(path(u"socket"_s)).constData(), S_IFSOCK | 0600, 0), 0);
        const auto bytes = readWholeFile(name.startsWith(u'/') ? name : path(name), limit);
        QCOMPARE(bytes.ok(), failure < 0);
        if (bytes)
            QCOMPARE(bytes.value(), oldBytes);
        else
            QCOMPARE(int(bytes.failure().code), failure);
    }

    /// Root may write everywhere, so the test changes to another user.
    void aFileThatMayBeWrittenInAFolderThatMayNotIsWritten()
    {
        QVERIFY(put(path(u"a.png"_s), oldBytes));
        QCOMPARE(::chmod(QFile::encodeName(path(u"a.png"_s)).constData(), 0666), 0);
        QCOMPARE(::chmod(QFile::encodeName(m_folder->path()).constData(), 0555), 0);
        const uid_t user = ::geteuid();
        constexpr uid_t nobody = 65534;
        if (user == 0)
            QCOMPARE(::seteuid(nobody), 0);
        const Outcome existing = writeWholeFile(path(u"a.png"_s), newBytes);
        const Outcome fresh = writeWholeFile(path(u"b.png"_s), newBytes);
        if (user == 0)
            QCOMPARE(::seteuid(user), 0);
        QCOMPARE(::chmod(QFile::encodeName(m_folder->path()).constData(), 0755), 0);
        QVERIFY(existing.ok());
        QCOMPARE(get(path(u"a.png"_s)), newBytes);
        QVERIFY(!fresh.ok());
        QCOMPARE(fresh.failure().detail.words(), qt_error_string(EACCES));
    }

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(WholeFileTest)
#include "WholeFileTest.moc"
