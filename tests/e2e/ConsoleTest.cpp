#include "ConsoleRun.h"

#include <QDir>
#include <QImage>
#include <QtEndian>

#include <zlib.h>

using namespace Qt::StringLiterals;

namespace {

using Console = ConsoleRun;

bool holds(const std::string &text, const QString &part) {
    return text.find(part.toStdString()) != std::string::npos;
}

// A PNG that claims a size and has no pixels.
QByteArray hugePng(quint32 side) {
    const auto big = [](quint32 n) {
        n = qToBigEndian(n);
        return QByteArray(reinterpret_cast<const char *>(&n), 4);
    };
    const auto chunk = [&big](const QByteArray &named) {
        const auto *bytes = reinterpret_cast<const Bytef *>(named.constData());
        return big(quint32(named.size()) - 4) + named + big(quint32(crc32(0, bytes, uInt(named.size()))));
    };
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR" + big(side) + big(side) + QByteArray("\x08\x02\0\0\0", 5)) +
           chunk("IEND");
}

} // namespace

TEST_F(Console, EndsBeforeAnyWork) {
    const QString good = picture(u"good.png"_s);
    const QString gone = u"[CLI] Invalid file or directory path:gone.jpg\nNo valid image files passed\n"_s;
    QDir().mkpath(at(u"none"_s));
    const QString none = u"No valid image files passed\n"_s;
    struct {
        const char *what;
        QStringList arguments;
        int code;
        QString error;
    } const rows[] = {
        {"nothing", {}, 255, none},
        {"folder without pictures", {at(u"none"_s), u"--keep-going"_s}, 255, none},
        {"missing file", {u"gone.jpg"_s}, 255, gone},
        {"missing file among none", {u"gone.jpg"_s, u"--keep-going"_s}, 255, gone},
        {"unknown option", {good, u"--nothing"_s}, 253, u"Unknown argument: --nothing\n"_s},
        {"no value", {good, u"--output"_s}, 253, u"Missing value after argument: --output\n"_s},
    };
    for (const auto &row : rows) {
        const Answer answer = run(row.arguments);
        EXPECT_EQ(answer.code, row.code) << row.what;
        EXPECT_TRUE(holds(answer.err, row.error)) << row.what << ": " << answer.err;
        EXPECT_FALSE(holds(answer.err, u"Error |"_s)) << "a log line is no help: " << answer.err;
        EXPECT_EQ(answer.out, "") << row.what;
    }
    EXPECT_EQ(filesIn(u"."_s), QStringList{u"good.png"_s});
}

TEST_F(Console, BadInputIsToldAndStopsNobody) {
    picture(u"whole.jpg"_s, 400, 300);
    const QStringList bad = {
        file(u"empty.jpg"_s, {}),
        file(u"text.png"_s, "no picture at all"),
        file(u"header only.jpg"_s, contentOf(u"whole.jpg"_s).left(160)),
        file(u"claims 30000 by 30000.png"_s, hugePng(30000)),
        file(u"claims 2 billion by 2 billion.png"_s, hugePng(0x7fffffff)),
        file(u"raw without content.nef"_s, QByteArray(4096, 'x')),
    };
    for (const QString &path : bad) {
        const Answer answer = run({path, u"-o"_s, at(u"out"_s)});
        EXPECT_EQ(answer.code, 0) << path.toStdString() << ": a plain run always ends with 0";
        EXPECT_TRUE(holds(answer.out, u"Skipping image due to error: "_s + path + u'\n')) << answer.out;
    }
    EXPECT_EQ(filesIn(u"out"_s), QStringList());

    const QStringList options = {u"--keep-going"_s, u"-o"_s, at(u"out"_s), at(u"whole.jpg"_s)};
    const Answer answer = run(bad + options);
    EXPECT_EQ(answer.code, 1);
    EXPECT_EQ(filesIn(u"out"_s), QStringList{u"whole.jpg"_s});
    EXPECT_TRUE(holds(answer.err, u"6 of 7 files failed:\n"_s)) << answer.err;
    for (const QString &path : bad)
        EXPECT_TRUE(holds(answer.err, u"\n    "_s + path + u": "_s)) << answer.err;
}

TEST_F(Console, OddButGoodInput) {
    picture(u"one.png"_s, 1, 1);
    picture(u"wide.png"_s, 300, 1);
    picture(u"really a png.png"_s);
    QFile::rename(at(u"really a png.png"_s), at(u"mislabelled.jpg"_s));
    picture(u"quote\" new\nline ü 写.png"_s);
    picture(u"-dash.png"_s);
    const QStringList names = filesIn(u"."_s);
    const Answer answer = run({u"."_s, u"--output"_s, u"--odd \"out\" ü"_s, u"--keep-going"_s, u"--noise"_s});
    EXPECT_EQ(answer.code, 0) << answer.err;
    EXPECT_EQ(answer.err, "");
    EXPECT_EQ(filesIn(u"--odd \"out\" ü"_s), names);
    for (const QString &name : names)
        EXPECT_EQ(QImage(at(u"--odd \"out\" ü/"_s + name)).size().isEmpty(), false) << name.toStdString();
}

TEST_F(Console, FoldersAreRecreatedAndOriginalsKept) {
    for (const QString &name : {u"in/a.png"_s, u"in/deep/er/b.jpg"_s, u"in/deep/a.png"_s})
        picture(name);
    const QByteArray before = contentOf(u"in/deep/er/b.jpg"_s);
    EXPECT_EQ(run({at(u"in"_s), u"-r"_s, u"-o"_s, at(u"out"_s), u"--keep-going"_s}).code, 0);
    EXPECT_EQ(filesIn(u"out"_s), (QStringList{u"a.png"_s, u"deep/a.png"_s, u"deep/er/b.jpg"_s}));
    EXPECT_EQ(run({u"-r"_s, at(u"in"_s), u"--format"_s, u"jpg"_s, u"--keep-going"_s}).code, 0);
    EXPECT_EQ(filesIn(u"in"_s), (QStringList{u"a.jpeg"_s, u"a.png"_s, u"deep/a.jpeg"_s, u"deep/a.png"_s,
                                             u"deep/er/b-1.jpg"_s, u"deep/er/b.jpg"_s}));
    EXPECT_EQ(contentOf(u"in/deep/er/b.jpg"_s), before);
}

TEST_F(Console, AResultIsNamedAsItIsWritten) {
    picture(u"in/h.png"_s);
    EXPECT_EQ(run({at(u"in/h.png"_s), u"-f"_s, u"tif"_s, u"--keep-going"_s}).code, 0);
    QFile::remove(at(u"in/h.png"_s));
    QFile::rename(at(u"in/h.tiff"_s), at(u"in/h.tif"_s));
    QFile::copy(QStringLiteral(SAMPLES "/three-colours.heic"), at(u"in/h.heic"_s));
    const Answer answer =
        run({at(u"in"_s), u"-o"_s, at(u"out"_s), u"--overwrite"_s, u"--keep-going"_s, u"--verbose"_s});
    EXPECT_EQ(answer.code, 0) << answer.err;
    EXPECT_EQ(filesIn(u"out"_s), (QStringList{u"h-1.tif"_s, u"h.tif"_s})) << "two sources, two results";
    const std::string all = answer.out + answer.err;
    EXPECT_TRUE(holds(all, u"out/h-1.tif"_s)) << all;
    EXPECT_FALSE(holds(all, u"out/h.heic"_s)) << all;
}

TEST_F(Console, AResultThatCannotBeWritten) {
    QDir().mkpath(at(u"out/a.png"_s));
    const Answer answer =
        run({picture(u"a.png"_s), picture(u"b.png"_s), u"-o"_s, at(u"out"_s), u"--overwrite"_s});
    EXPECT_EQ(answer.code, 0);
    const QString message = u"Could not save file '"_s + at(u"out/a.png"_s) + u"' Error: "_s;
    EXPECT_TRUE(holds(answer.err, message)) << answer.err;
    EXPECT_EQ(filesIn(u"out"_s), QStringList{u"b.png"_s});
}

TEST_F(Console, AnEnlargedResult) {
    const Answer answer = run({picture(u"a.png"_s, 40, 30), u"--upscale"_s, u"scale=2"_s, u"-o"_s,
                               at(u"out"_s), u"--showSettings"_s});
    EXPECT_EQ(answer.code, 0) << answer.err;
    EXPECT_EQ(QImage(at(u"out/a.png"_s)).size(), QSize(80, 60));
    EXPECT_TRUE(holds(answer.out, u"Overwriting Enhance scale to 2\n"_s));
    EXPECT_TRUE(holds(answer.out, u"Final Settings for "_s + at(u"a.png"_s) + u":\n{\n"_s));
}
