#include "TestFiles.h"

#include "imageio/LeftoverFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace testio;

namespace {

/// Files of this process may not grow over `bytes`, as on a full disk.
class SizeLimit {
public:
    explicit SizeLimit(rlim_t bytes) {
        m_oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit limit{bytes, m_old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit() {
        setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
    }
    SizeLimit(const SizeLimit &) = delete;
    SizeLimit &operator=(const SizeLimit &) = delete;

private:
    rlimit m_old{};
    void (*m_oldHandler)(int) = nullptr;
};

} // namespace

TEST(WriteFailure, TellsWhyAndLeavesNothing) {
    const Folder folder;
    setContents(folder("file"), "x");
    ASSERT_TRUE(QDir().mkpath(folder("folder.jpg")));
    ASSERT_TRUE(QFile::link(folder("loop.jpg"), folder("loop.jpg")));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), folder("device.jpg")));
    struct Row {
        const char *name;
        QString path;
        const char *reason;
    };
    const std::vector<Row> rows = {
        {"below a file", folder("file/a.jpg"), "is a file"},
        {"a folder's name", folder("folder.jpg"), "that of a folder"},
        {"a device", folder("device.jpg"), "device or pipe"},
        {"no name", {}, "No output file was named"},
        {"link to itself", folder("loop.jpg"), "link"},
        {"name too long", folder("") + QString(300, u'n') + QStringLiteral(".jpg"), "too long"},
        {"no such folder can be made", QStringLiteral("/proc/none/a.jpg"), "."},
    };
    const QStringList before = folder.entries();
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        const WriteResult result = write(quarters(20, 20), row.path);
        EXPECT_NE(result.error.toStdString().find(row.reason), std::string::npos)
            << result.error.toStdString();
        EXPECT_EQ(result.fileSize, 0);
        EXPECT_EQ(folder.entries(), before);
    }
    EXPECT_NE(write({}, folder("a.jpg")).error, QString());
}

TEST(WriteFailure, AFolderWithoutPermission) {
    const Folder folder;
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0555), 0);
    // Permissions do not bind the administrator, who writes as nobody here.
    const uid_t self = ::geteuid();
    ASSERT_TRUE(self != 0 || ::seteuid(65534) == 0);
    const QString error = write(quarters(20, 20), folder("a.jpg")).error;
    ASSERT_EQ(::seteuid(self), 0);
    EXPECT_NE(error.indexOf(QStringLiteral("Permission")), -1) << error.toStdString();
    ::chmod(QFile::encodeName(folder.path()).constData(), 0700);
}

TEST(WriteFailure, AFullDiskKeepsTheOldFile) {
    const auto image = picture(700, 500, 3, SampleType::UInt16);
    for (const char *name : {"a.jpg", "a.png", "a.tif", "zip.tif", "a.webp", "a.bmp", "a.dng"}) {
        for (const rlim_t limit : {rlim_t(0), rlim_t(3000), rlim_t(9000)}) {
            SCOPED_TRACE(std::string(name) + " " + std::to_string(limit));
            const Folder folder;
            setContents(folder(name), "old");
            WriteResult result;
            {
                const SizeLimit full(limit);
                const bool zip = std::string(name).starts_with("zip");
                result = write(
                    image, folder(name),
                    {{QStringLiteral("compression"), zip ? QStringLiteral("zip") : QStringLiteral("none")}});
            }
            EXPECT_EQ(result.error.toStdString(), "The file grows over the size that is allowed there.");
            EXPECT_EQ(contents(folder(name)), "old");
            EXPECT_EQ(folder.entries().size(), 1);
        }
    }
}

TEST(WriteFailure, TheInputAsOutputIsReplacedWholeOrNotAtAll) {
    const Folder folder;
    const auto image = picture(300, 200, 3, SampleType::UInt8);
    ASSERT_EQ(write(image, folder("a.jpg")).error.toStdString(), "");
    setExif(folder("a.jpg"), "Exif.Image.Model", "Model One");
    const QByteArray old = contents(folder("a.jpg"));
    const ReadResult opened = read(folder("a.jpg"));
    {
        const SizeLimit full(3000);
        EXPECT_NE(write(opened.image, folder("a.jpg"), {}, {}, folder("a.jpg")).error, QString());
    }
    EXPECT_EQ(contents(folder("a.jpg")), old);
    EXPECT_EQ(write(opened.image, folder("a.jpg"), {}, {}, folder("a.jpg")).error.toStdString(), "");
    EXPECT_EQ(read(folder("a.jpg")).metadata.value(QStringLiteral("model")).toString().toStdString(),
              "Model One");
}

TEST(WriteFailure, LinksPermissionsAndMissingFolders) {
    const Folder folder;
    const auto image = quarters(30, 20);
    ASSERT_EQ(write(image, folder("deep/er/still/a.png")).error.toStdString(), "");
    EXPECT_TRUE(QFileInfo(folder("deep/er/still/a.png")).isFile());

    setContents(folder("real.png"), "old");
    ASSERT_EQ(::chmod(QFile::encodeName(folder("real.png")).constData(), 0640), 0);
    ASSERT_TRUE(QFile::link(folder("real.png"), folder("link.png")));
    ASSERT_EQ(write(image, folder("link.png")).error.toStdString(), "");
    EXPECT_TRUE(QFileInfo(folder("link.png")).isSymLink());
    EXPECT_TRUE(read(folder("real.png")).image);
    struct stat s{};
    ASSERT_EQ(::stat(QFile::encodeName(folder("real.png")).constData(), &s), 0);
    EXPECT_EQ(s.st_mode & 0777, 0640u);
}

TEST(WriteFailure, TemporaryFilesOfDeadProcessesGoAndNothingElse) {
    const pid_t dead = ::fork();
    if (dead == 0)
        ::_exit(0);
    ASSERT_EQ(::waitpid(dead, nullptr, 0), dead);
    const Folder folder;
    const QString ours = imageio::temporaryPrefix().section(u'-', 0, 1) + u'-';
    const QString left = folder.path() + u'/' + ours + QString::number(dead);
    const QStringList kept = {
        folder.path() + u'/' + ours + QString::number(::getppid()) + QStringLiteral("-abcdef"),
        folder("") + QStringLiteral(".orvane-00000000-%1-abcdef").arg(dead),
        left + QStringLiteral("-abcdef.jpg"),
        left + QStringLiteral("-"),
        folder(".orvane-abcdef"),
        folder("real"),
    };
    for (const QString &path : kept)
        setContents(path, "x");
    ASSERT_TRUE(QFile::link(folder("real"), left + QStringLiteral("-linked")));
    ASSERT_TRUE(QDir().mkdir(left + QStringLiteral("-folder")));
    const QStringList before = folder.entries();
    setContents(left + QStringLiteral("-abcdef"), "part of a picture");
    ASSERT_EQ(write(quarters(20, 20), folder("a.png")).error.toStdString(), "");
    EXPECT_TRUE(QFile::remove(folder("a.png")));
    EXPECT_EQ(folder.entries(), before);
}

TEST(WriteFailure, AKilledProgramLeavesAWholeFile) {
    const Folder folder;
    const QString path = folder("a.png");
    const auto first = picture(900, 700, 3, SampleType::UInt8);
    ASSERT_EQ(write(first, path).error.toStdString(), "");
    for (const int delay : {0, 20, 50, 90, 140}) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--overwrite-until-killed"), path});
        ASSERT_TRUE(process.waitForStarted());
        ASSERT_TRUE(process.waitForReadyRead(60000));
        EXPECT_LE(folder.entries().size(), 2) << "what the last one left is gone";
        QTest::qSleep(delay);
        process.kill();
        process.waitForFinished();
        const ReadResult back = read(path);
        ASSERT_TRUE(back.image) << back.error.toStdString();
        EXPECT_EQ(psnr(*back.image, *first), 200);
    }
}
