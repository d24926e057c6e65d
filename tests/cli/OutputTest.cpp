#include "FolderTest.h"

#include "cli/OutputNaming.h"
#include "cli/WriterOptions.h"

using namespace Qt::StringLiterals;

TEST(OutputKind, FollowsRequestAndExtension) {
    struct {
        QString input;
        OutputFormat requested;
        QString extension;
        OutputFormat format;
    } const rows[] = {
        {u"photo.JPG"_s, OutputFormat::Jpeg, u"JPG"_s, OutputFormat::Jpeg},
        {u"photo.png"_s, OutputFormat::Jpeg, u"jpeg"_s, OutputFormat::Jpeg},
        {u"photo.TIF"_s, OutputFormat::Tiff, u"TIF"_s, OutputFormat::Tiff},
        {u"photo.nef"_s, OutputFormat::Tiff, u"tiff"_s, OutputFormat::Tiff},
        {u"photo.DNG"_s, OutputFormat::Dng, u"DNG"_s, OutputFormat::Dng},
        {u"photo"_s, OutputFormat::Dng, u"dng"_s, OutputFormat::Dng},
        {u"photo.CR2"_s, OutputFormat::Preserve, u"dng"_s, OutputFormat::Dng},
        {u"photo.JPEG"_s, OutputFormat::Preserve, u"JPEG"_s, OutputFormat::Jpeg},
        {u"photo.webp"_s, OutputFormat::Preserve, u"webp"_s, OutputFormat::Preserve},
    };
    for (const auto &row : rows) {
        const OutputKind kind = outputKind(row.input, row.requested);
        EXPECT_EQ(kind.extension, row.extension) << row.input.toStdString() << " as " << int(row.requested);
        EXPECT_EQ(kind.format, row.format) << row.input.toStdString() << " as " << int(row.requested);
    }
}

TEST(WriterOptions, PerFormat) {
    BatchOptions options;
    EXPECT_EQ(writerOptions(OutputFormat::Jpeg, options), (QVariantMap{{u"Compression"_s, u"jpeg:95"_s}}));
    EXPECT_EQ(writerOptions(OutputFormat::Png, options), (QVariantMap{{u"png:compressionLevel"_s, 2}}));
    EXPECT_EQ(writerOptions(OutputFormat::Preserve, options), QVariantMap());
    options.tiffBitDepth = 8;
    options.tiffCompression = TiffCompression::Lzw;
    const QVariantMap tiff = {{u"compression"_s, u"lzw"_s},
                              {u"oiio:BitsPerSample"_s, 8},
                              {u"tiff:RowsPerStrip"_s, 1},
                              {u"tiff:zipquality"_s, 4}};
    EXPECT_EQ(writerOptions(OutputFormat::Tiff, options), tiff);
    EXPECT_EQ(writerOptions(OutputFormat::Dng, options), tiff);
}

TEST(WriterOptions, RepairsTellOnceAndLast) {
    const Capture capture;
    BatchOptions options;
    options.tiffCompression = TiffCompression::Lzw;
    EXPECT_EQ(writerOptions(OutputFormat::Tiff, options).value(u"compression"_s), u"zip"_s);
    EXPECT_EQ(writerOptions(OutputFormat::Tiff, options).value(u"compression"_s), u"zip"_s);
    options.tiffBitDepth = 12;
    EXPECT_EQ(writerOptions(OutputFormat::Dng, options).value(u"oiio:BitsPerSample"_s), 16);
    EXPECT_EQ(options.tiffBitDepth, 16);
    EXPECT_EQ(capture.err(),
              "16-bit TIFF is not supported with LZW compression. Using Zip compression instead.\n"
              "Invalid TIFF bit depth: 12\nDefaulting to 16-bit TIFF output\n");
}

namespace {

class Naming : public FolderTest {
protected:
    QString name(const QString &input, const QString &extension) {
        return QDir(m_folder.path()).relativeFilePath(m_naming.pathFor(at(input), extension, m_options));
    }

    OutputNaming m_naming;
    BatchOptions m_options;
};

} // namespace

TEST_F(Naming, BesideTheSource) {
    for (const QString &there : {u"a.jpg"_s, u"x-3.jpg"_s, u"x-3-1.jpg"_s})
        make(there);
    EXPECT_EQ(name(u"a.jpg"_s, u"jpg"_s), u"a-1.jpg"_s);
    EXPECT_EQ(name(u"a.jpg"_s, u"jpg"_s), u"a-2.jpg"_s) << "the first still waits to be written";
    EXPECT_EQ(name(u"x-3.jpg"_s, u"jpg"_s), u"x-3-2.jpg"_s);
    EXPECT_EQ(name(u"b.c.png"_s, u"jpeg"_s), u"b.c.jpeg"_s);
    EXPECT_EQ(name(u"dotted.d/plain"_s, u"png"_s), u"dotted.d/plain.png"_s);
}

TEST_F(Naming, TwoInputsNeverShareAName) {
    EXPECT_EQ(name(u"a.png"_s, u"png"_s), u"a.png"_s);
    EXPECT_EQ(name(u"a.jpg"_s, u"png"_s), u"a-1.png"_s);
    EXPECT_EQ(name(u"b/../a.tif"_s, u"png"_s), u"a-2.png"_s) << "the same folder in other words";
}

TEST_F(Naming, OverwritingSparesWhatTheRunUses) {
    for (const char *there : {"a.png", "h.heic", "h.tif", "i.tif", "j.png", "j-1.png"})
        make(QString::fromLatin1(there));
    m_options.overwrite = true;
    m_naming.setInputs({at(u"a.jpg"_s), at(u"a.png"_s), at(u"h.heic"_s), at(u"h.tif"_s), at(u"g.heic"_s)});
    EXPECT_EQ(name(u"a.jpg"_s, u"png"_s), u"a-1.png"_s) << "its place is that of another input";
    EXPECT_EQ(name(u"a.png"_s, u"png"_s), u"a.png"_s);
    EXPECT_EQ(name(u"h.heic"_s, u"heic"_s), u"h-1.tif"_s) << "can only be read";
    EXPECT_EQ(name(u"h.tif"_s, u"tif"_s), u"h.tif"_s);
    EXPECT_EQ(name(u"g.heic"_s, u"heic"_s), u"g.tif"_s);
    EXPECT_EQ(name(u"g.tif"_s, u"tif"_s), u"g-1.tif"_s) << "given to another one";
    EXPECT_EQ(name(u"i.AVIF"_s, u"AVIF"_s), u"i-1.tif"_s) << "nobody asked to replace a TIFF";
    EXPECT_EQ(name(u"j.jpg"_s, u"png"_s), u"j.png"_s);
    EXPECT_EQ(name(u"j.tif"_s, u"png"_s), u"j-2.png"_s) << "a numbered name replaces nothing";
}

TEST_F(Naming, InAFolder) {
    for (const QString &there : {u"in/one.jpg"_s, u"in/deep/er/two.jpg"_s, u"inside/three.jpg"_s})
        make(there);
    QDir(m_folder.path()).mkdir(u"out"_s);
    m_options.outputFolder = at(u"out"_s);
    m_options.inputDirectories = {at(u"in"_s)};
    EXPECT_EQ(name(u"in/one.jpg"_s, u"png"_s), u"out/one.png"_s);
    EXPECT_EQ(name(u"in/deep/er/two.jpg"_s, u"dng"_s), u"out/deep/er/two.dng"_s);
    EXPECT_TRUE(QFileInfo(at(u"out/deep/er"_s)).isDir()) << "its parent was missing, so all is made";
    EXPECT_EQ(name(u"in/once/six.jpg"_s, u"jpg"_s), u"out/once/six.jpg"_s);
    EXPECT_FALSE(QFileInfo::exists(at(u"out/once"_s))) << "its parent stands, so the writer makes it";
    EXPECT_EQ(name(u"inside/three.jpg"_s, u"jpg"_s), u"out/three.jpg"_s) << "a name that begins alike";
    EXPECT_EQ(name(u"elsewhere/a.b.jpg"_s, u"jpg"_s), u"out/a.b.jpg"_s);
}
