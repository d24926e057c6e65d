#include "TestFiles.h"

#include "imageio/LeftoverFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTest>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace testio;

namespace {

/// Files of this process may not grow over `bytes` here, as on a full disk.
WriteResult writeUpTo(rlim_t bytes, const ImageRef &image, const QString &output, const QVariantMap &options,
                      const QString &input = {}) {
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const rlimit limit{bytes, old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
    const WriteResult result = write(image, output, options, {}, input);
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, handler);
    return result;
}

} // namespace

TEST(WriteFailure, TellsWhyAndLeavesNothing) {
    const Folder folder;
    setContents(folder("file"), "x");
    ASSERT_TRUE(QDir().mkpath(folder("folder.jpg")));
    ASSERT_TRUE(QFile::link(folder("loop.jpg"), folder("loop.jpg")));
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, folder("device.jpg")));
    const struct {
        const char *name;
        QString path;
        const char *reason;
    } rows[] = {
        {"below a file", folder("file/a.jpg"), "is a file"},
        {"a folder's name", folder("folder.jpg"), "that of a folder"},
        {"a device", folder("device.jpg"), "device or pipe"},
        {"no name", {}, "No output file was named"},
        {"link to itself", folder("loop.jpg"), "link"},
        {"name too long", folder("") + QString(300, u'n') + u".jpg"_s, "too long"},
        {"no such folder can be made", u"/proc/none/a.jpg"_s, "."},
    };
    const QStringList before = folder.entries();
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const WriteResult result = write(quarters(20, 20), row.path);
        EXPECT_TRUE(result.error.contains(QLatin1String(row.reason))) << result.error.toStdString();
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
    EXPECT_TRUE(error.contains(u"Permission"_s)) << error.toStdString();
    ::chmod(QFile::encodeName(folder.path()).constData(), 0700);
}

TEST(WriteFailure, AFullDiskKeepsTheOldFile) {
    const auto image = picture(700, 500, 3, SampleType::UInt16);
    for (const char *name : {"a.jpg", "a.png", "a.tif", "zip.tif", "a.webp", "a.bmp", "a.dng"}) {
        for (const rlim_t limit : {rlim_t(0), rlim_t(3000), rlim_t(9000)}) {
            SCOPED_TRACE(std::string(name) + " " + std::to_string(limit));
            const Folder folder;
            setContents(folder(name), "old");
            const QString compression = std::string(name).starts_with("zip") ? u"zip"_s : u"none"_s;
            const WriteResult result =
                writeUpTo(limit, image, folder(name), {{u"compression"_s, compression}});
            EXPECT_EQ(result.error.toStdString(), "The file grows over the size that is allowed there.");
            EXPECT_EQ(contents(folder(name)), "old");
            EXPECT_EQ(folder.entries().size(), 1);
        }
    }
}

TEST(WriteFailure, TheInputAsOutputIsReplacedWholeOrNotAtAll) {
    const Folder folder;
    mustWrite(picture(300, 200), folder("a.jpg"));
    setExif(folder("a.jpg"), "Exif.Image.Model", "Model One");
    const QByteArray old = contents(folder("a.jpg"));
    const ReadResult opened = mustRead(folder("a.jpg"));
    EXPECT_NE(writeUpTo(3000, opened.image, folder("a.jpg"), {}, folder("a.jpg")).error, QString());
    EXPECT_EQ(contents(folder("a.jpg")), old);
    mustWrite(opened.image, folder("a.jpg"), {}, folder("a.jpg"));
    EXPECT_EQ(read(folder("a.jpg")).metadata.value(u"model"_s).toString().toStdString(), "Model One");
}

TEST(WriteFailure, LinksPermissionsAndMissingFolders) {
    const Folder folder;
    const auto image = quarters(30, 20);
    mustWrite(image, folder("deep/er/still/a.png"));
    EXPECT_TRUE(QFileInfo(folder("deep/er/still/a.png")).isFile());

    setContents(folder("real.png"), "old");
    ASSERT_EQ(::chmod(QFile::encodeName(folder("real.png")).constData(), 0640), 0);
    ASSERT_TRUE(QFile::link(folder("real.png"), folder("link.png")));
    mustWrite(image, folder("link.png"));
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
        folder.path() + u'/' + ours + QString::number(::getppid()) + u"-abcdef"_s,
        folder("") + u".orvane-00000000-%1-abcdef"_s.arg(dead),
        left + u"-abcdef.jpg"_s,
        left + u"-"_s,
        folder(".orvane-abcdef"),
        folder("real"),
    };
    for (const QString &path : kept)
        setContents(path, "x");
    ASSERT_TRUE(QFile::link(folder("real"), left + u"-linked"_s));
    ASSERT_TRUE(QDir().mkdir(left + u"-folder"_s));
    const QStringList before = folder.entries();
    setContents(left + u"-abcdef"_s, "part of a picture");
    mustWrite(quarters(20, 20), folder("a.png"));
    EXPECT_TRUE(QFile::remove(folder("a.png")));
    EXPECT_EQ(folder.entries(), before);
}

TEST(WriteFailure, AKilledProgramLeavesAWholeFile) {
    const Folder folder;
    const QString path = folder("a.png");
    const auto first = picture(900, 700);
    mustWrite(first, path);
    for (const int delay : {0, 20, 50, 90, 140}) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {u"--overwrite-until-killed"_s, path});
        ASSERT_TRUE(process.waitForStarted());
        ASSERT_TRUE(process.waitForReadyRead(60000));
        EXPECT_LE(folder.entries().size(), 2) << "what the last one left is gone";
        QTest::qSleep(delay);
        process.kill();
        process.waitForFinished();
        const ReadResult back = mustRead(path);
        EXPECT_EQ(psnr(*back.image, *first), 200);
    }
}
