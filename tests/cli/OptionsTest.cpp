#include "FolderTest.h"

#include "cli/FileGathering.h"
#include "cli/Options.h"

using namespace Qt::StringLiterals;

namespace {

// One line that says everything a command line decided, so that a row can be compared whole.
std::string describe(const BatchOptions &o) {
    QStringList words;
    const auto add = [&](bool condition, const QString &word) {
        if (condition)
            words.append(word);
    };
    add(!o.validArguments, u"bad"_s);
    add(o.overwrite, u"overwrite"_s);
    add(o.recursive, u"recursive"_s);
    add(o.showSettings, u"show"_s);
    add(o.skipProcessing, u"skip"_s);
    add(o.keepGoing, u"keep"_s);
    add(o.overrideAutopilot, u"override"_s);
    add(o.outputFormat != OutputFormat::Preserve, u"f%1"_s.arg(int(o.outputFormat)));
    add(o.jpegQuality != 95, u"q%1"_s.arg(o.jpegQuality));
    add(o.pngCompression != 2, u"c%1"_s.arg(o.pngCompression));
    add(o.tiffBitDepth != 16, u"d%1"_s.arg(o.tiffBitDepth));
    add(o.tiffCompression != TiffCompression::None, u"tc%1"_s.arg(int(o.tiffCompression)));
    add(!o.presetName.isEmpty(), u"preset:"_s + o.presetName);
    for (const QString &category : o.overrides.uniqueKeys())
        words.append(category + u'[' + o.overrides.values(category).join(u' ') + u']');
    return words.join(u' ').toStdString();
}

class Gathering : public FolderTest {
protected:
    Gathering() {
        for (const QString &name : {u"b.JPG"_s, u"a.png"_s, u"notes.txt"_s, u"deep/c.tif"_s, u"deep/d.nef"_s})
            make(name);
    }
    QStringList gather(const QStringList &args) { return gatherFiles(args, categoryStems(), m_options); }

    BatchOptions m_options;
};

} // namespace

TEST(CommandLine, IsRead) {
    struct Row {
        const char *arguments; ///< separated by blanks
        const char *decided, *message = "";
    };
    const auto check = [](const Row &row) {
        SCOPED_TRACE(row.arguments);
        const Capture capture;
        BatchOptions options;
        const QStringList args = QString::fromUtf8(row.arguments).split(u' ', Qt::SkipEmptyParts);
        EXPECT_TRUE(gatherFiles(args, categoryStems(), options).isEmpty());
        EXPECT_EQ(describe(options), row.decided);
        EXPECT_EQ(capture.err(), row.message);
        EXPECT_EQ(capture.out(), "");
    };
    const auto checkAll = [&check](const auto &...rows) { (check(rows), ...); };
    checkAll(
        Row("", ""), Row("--cli --LOG -v --verbose", ""),
        Row("--overwrite -r --showSettings --skipProcessing", "overwrite recursive show skip"),
        Row("--OverWrite -recursive --keep-going --override", "overwrite recursive keep override"),
        Row("-jpg", "f1"), Row("--png", "f2"), Row("--tif", "f3"), Row("--dng", "f4"),
        Row("--dng --preserve", ""), Row("-f TIFF", "f3"), Row("--format jpg", "f1"),
        Row("-q 0 -c 10 -d 8", "q0 c10 d8"), Row("--quality 100 --compression 0", "q100 c0"),
        Row("-tc LZW", "tc2"), Row("--tiff-compression zip", "tc1"), Row("--noise", "Denoise[enabled=true]"),
        Row("--denoise strength=50 model=Foo", "Denoise[enabled=true model=Foo strength=50]"),
        Row("--noise enabled=false", "Denoise[enabled=true enabled=false]"),
        Row("--upscale a=1 --UPSCALE b=2", "Enhance[enabled=true b=2 enabled=true a=1]"),
        Row("--lighting --face --raw",
            "Exposure Adjust[enabled=true] Face Recovery[enabled=true] RAW[enabled=true]"),
        Row("--color-sharpen", "White Balance Adjust[enabled=true]"),
        Row("--sharpen a=b=c", "Sharpen[enabled=true]", "[CLI] Invalid file or directory path:a=b=c\n"),
        Row("--sharpen gone.jpg", "Sharpen[enabled=true]", "[CLI] Invalid file or directory path:gone.jpg\n"),
        Row("--nothing", "bad", "Unknown argument: --nothing\n"), Row("-", "bad", "Unknown argument: -\n"),
        Row("--bogus --overwrite", "bad", "Unknown argument: --bogus\n"),
        Row("--format bmp", "bad",
            "Invalid file format specified:bmpExpected one of: jpg, jpeg, png, tif, tiff, dng, or "
            "preserve."),
        Row("-q 95x", "bad q0", "[CLI] Invalid JPEG quality given: 95x\nExpected number from 0 to 100\n"),
        Row("--quality -1", "bad q-1",
            "[CLI] Invalid JPEG quality given\nExpected number from 0 to 100, but got -1\n"),
        Row("-c x", "bad c0", "[CLI] Invalid PNG compression given: x\nExpected number from 0 to 10\n"),
        Row("-c 11", "bad c11",
            "[CLI] Invalid PNG compression given\nExpected number from 0 to 10, but got 11\n"),
        Row("-d deep", "bad d0", "Invalid bit depth given: deep\nExpected either 8 or 16.\n"),
        Row("-d 12", "bad d12", "Invalid bit depth given\nExpected either 8 or 16, but got 12\n"),
        Row("-tc rar", "bad",
            "Invalid TIFF compression given: rar\nExpected one of \"none\", \"lzw\", or \"zip\"\n"),
        Row("--preset Portraits", "preset:Portraits"), Row("--Preset a/b.json", "preset:a/b.json"),
        Row("--preset", "bad", "Missing value after argument: --preset\n"),
        Row("--output", "bad", "Missing value after argument: --output\n"),
        Row("--overwrite -q", "bad overwrite", "Missing value after argument: -q\n"),
        Row("gone --bogus", "", "[CLI] Invalid file or directory path:gone\n"),
        Row("gone --keep-going --bogus", "bad keep",
            "[CLI] Invalid file or directory path:gone\nUnknown argument: --bogus\n"),
        Row("gone -f --keep-going", "", "[CLI] Invalid file or directory path:gone\n"));
}

TEST_F(Gathering, FoldersAreWalkedOnceAllOptionsAreRead) {
    QStringList flat = gather({m_folder.path() + u"/"_s, at(u"a.png"_s)});
    flat.sort();
    EXPECT_EQ(flat, (QStringList{at(u"a.png"_s), at(u"b.JPG"_s)}));
    EXPECT_EQ(m_options.inputDirectories, QSet<QString>{m_folder.path()});

    QStringList deep = gather({m_folder.path(), at(u"notes.txt"_s), u"-r"_s});
    deep.sort();
    EXPECT_EQ(deep, (QStringList{at(u"a.png"_s), at(u"b.JPG"_s), at(u"deep/c.tif"_s), at(u"deep/d.nef"_s),
                                 at(u"notes.txt"_s)}));
}

TEST_F(Gathering, AMissingPathEndsItUnlessItIsToKeepGoing) {
    EXPECT_TRUE(gather({at(u"a.png"_s), at(u"gone"_s), at(u"b.JPG"_s)}).isEmpty());
    EXPECT_TRUE(m_options.validArguments);
    EXPECT_EQ(gather({at(u"b.JPG"_s), at(u"gone"_s), at(u"a.png"_s), u"--keep-going"_s}),
              (QStringList{at(u"b.JPG"_s), at(u"a.png"_s)}));
    EXPECT_EQ(m_options.missingPaths, QStringList{at(u"gone"_s)});
}

TEST_F(Gathering, OutputFolders) {
    struct {
        const char *what;
        QString value;
        QString taken;
        bool good;
    } const rows[] = {
        {"there already", at(u"deep"_s), at(u"deep"_s), true},
        {"made, with an odd name", at(u"ne\nw/ü \"x"_s), at(u"ne\nw/ü \"x"_s), true},
        {"quote left behind by a shell", at(u"quoted\""_s), at(u"quoted"_s), true},
        {"below a file", at(u"a.png/x"_s), QString(), false},
    };
    for (const auto &row : rows) {
        m_options = {};
        gather({u"--OUTPUT"_s, row.value});
        EXPECT_EQ(m_options.validArguments, row.good) << row.what;
        EXPECT_EQ(m_options.outputFolder, row.taken) << row.what;
        EXPECT_EQ(QFileInfo(row.taken).isDir(), row.good) << row.what;
    }
    EXPECT_EQ(m_capture.err(), "Invalid output path: " + at(u"a.png/x"_s).toStdString() + "\n");
}
