#include "TestFiles.h"

#include "imageio/FileProbe.h"

#include <QtEndian>

#include <sys/resource.h>
#include <sys/stat.h>
#include <zlib.h>

using namespace testio;

namespace {

QByteArray big(std::uint32_t value, int bytes = 4) {
    QByteArray out(4, '\0');
    qToBigEndian(value, out.data());
    return out.last(bytes);
}

QByteArray little(std::uint32_t value, int bytes = 4) {
    QByteArray out(4, '\0');
    qToLittleEndian(value, out.data());
    return out.first(bytes);
}

QByteArray chunk(const char *type, const QByteArray &body) {
    const QByteArray named = type + body;
    const auto sum = crc32(0, reinterpret_cast<const Bytef *>(named.constData()), uInt(named.size()));
    return big(std::uint32_t(body.size())) + named + big(std::uint32_t(sum));
}

QByteArray deflated(qsizetype zeros) {
    return qCompress(QByteArray(zeros, '\0'), 9).mid(4);
}

QByteArray png(std::uint32_t width, std::uint32_t height, const QByteArray &before = {}) {
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR", big(width) + big(height) + QByteArray("\x08\x02\0\0\0", 5)) +
           before + chunk("IDAT", deflated(5000)) + chunk("IEND", {});
}

QByteArray jpegHeader(std::uint32_t width, std::uint32_t height) {
    return QByteArray("\xff\xd8\xff\xc0\x00\x11\x08", 7) + big(height, 2) + big(width, 2) +
           QByteArray("\x03\x01\x11\x00\x02\x11\x00\x03\x11\x00", 10) + QByteArray("\xff\xda", 2) +
           QByteArray(200, 'x');
}

QByteArray tiffEntry(std::uint32_t tag, std::uint32_t type, std::uint32_t count, std::uint32_t value) {
    return little(tag, 2) + little(type, 2) + little(count) + little(value);
}

QByteArray tiffHeader(std::uint32_t width, std::uint32_t height, int compression,
                      const QByteArray &extra = {}) {
    const QByteArray entries = tiffEntry(256, 4, 1, width) + tiffEntry(257, 4, 1, height) +
                               tiffEntry(258, 3, 1, 8) + tiffEntry(259, 3, 1, std::uint32_t(compression)) +
                               tiffEntry(262, 3, 1, 1) + tiffEntry(273, 4, 1, 8) + tiffEntry(279, 4, 1, 100) +
                               extra;
    return QByteArray("II*\0\x08\0\0\0", 8) + little(std::uint32_t(entries.size() / 12), 2) + entries +
           little(0) + QByteArray(300, '\0');
}

QByteArray bmpHeader(std::uint32_t width, std::uint32_t height, std::uint32_t compression) {
    return "BM" + little(60) + little(0) + little(54) + little(40) + little(width) + little(height) +
           little(1, 2) + little(24, 2) + little(compression) + QByteArray(20, '\0') + QByteArray(64, '\x7f');
}

QByteArray webp(std::uint32_t width, std::uint32_t height) {
    const QByteArray body =
        "WEBPVP8X" + little(10) + QByteArray(4, '\0') + little(width - 1, 3) + little(height - 1, 3);
    return "RIFF" + little(std::uint32_t(body.size())) + body;
}

qint64 peakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

} // namespace

TEST(Hostile, EachFileIsRefusedWithItsReason) {
    const Folder folder;
    const QByteArray bomb = QByteArray("t\0\0", 3) + deflated(200 << 20);
    const struct {
        const char *name, *file;
        QByteArray bytes;
        const char *reason;
    } rows[] = {
        {"empty", "a.jpg", {}, "The file is empty."},
        {"one byte", "a.png", "x", "text"},
        {"text", "a.jpg", "Dear Sir or Madam,\nplease find attached", "The file holds text, not a picture."},
        {"text as RAW", "a.cr2", "Dear Sir or Madam,\nplease find attached",
         "The file holds text, not a picture."},
        {"unknown data", "a.tif", QByteArray("\1\2\3\4\0\0\0\0", 8), "not a picture in a format"},
        {"video", "a.heic", big(24) + "ftypmp42" + QByteArray(40, '\0'), "a video or another media file"},
        {"huge PNG", "a.png", png(30000, 30000), "at most 500 megapixels"},
        {"wide PNG", "a.png", png(100000, 10), "a side may have at most 65500"},
        {"PNG larger than its data", "a.png", png(20000, 20000), "can't hold so many"},
        {"PNG without rows", "a.png", png(0, 10), "no pixels"},
        {"PNG text bomb", "a.png", png(10, 10, chunk("zTXt", bomb)), "too large to be genuine"},
        {"PNG profile bomb", "a.png", png(10, 10, chunk("iCCP", bomb)), "too large to be genuine"},
        {"PNG international text bomb", "a.png",
         png(10, 10, chunk("iTXt", QByteArray("k\0\1\0\0\0", 6) + deflated(200 << 20))),
         "too large to be genuine"},
        {"PNG chunk over the end", "a.png", png(10, 10).chopped(20), "ends too early"},
        {"PNG without rows of pixels", "a.png", png(10, 500), "PNG data"},
        {"huge JPEG", "a.jpg", jpegHeader(65000, 65000), "at most 500 megapixels"},
        {"JPEG larger than its data", "a.jpg", jpegHeader(20000, 20000), "can't hold so many"},
        {"JPEG garbage", "a.jpg", jpegHeader(64, 64), "The JPEG data"},
        {"JPEG start only", "a.jpg", QByteArray("\xff\xd8\xff\xe0", 4), "ends too early"},
        {"huge TIFF", "a.tif", tiffHeader(60000, 60000, 1), "at most 500 megapixels"},
        {"TIFF larger than its data", "a.tif", tiffHeader(20000, 20000, 8), "can't hold so many"},
        {"TIFF with an endless profile", "a.tif", tiffHeader(10, 10, 1, tiffEntry(34675, 7, 0xfffffff0, 8)),
         "damaged"},
        {"TIFF directory outside", "a.tif", QByteArray("II*\0\xff\xff\xff\x7f", 8), "ends too early"},
        {"huge BMP", "a.bmp", bmpHeader(40000, 40000, 0), "ends too early"},
        {"short BMP", "a.bmp", bmpHeader(100, 100, 0), "ends too early"},
        {"BMP of unknown kind", "a.bmp", bmpHeader(100, 100, 77), "BMP header is damaged"},
        {"WebP without data", "a.webp", webp(16000, 16000), "can't hold so many"},
        {"short WebP", "a.webp", webp(10, 10).chopped(4), "ends too early"},
    };
    const qint64 before = peakMegabytes();
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        setContents(folder(row.file), row.bytes);
        const ReadResult result = read(folder(row.file));
        EXPECT_FALSE(result.image);
        EXPECT_TRUE(result.error.contains(QLatin1String(row.reason))) << result.error.toStdString();
        EXPECT_NE(files().writeThumbnail(folder(row.file), folder("t.png"), 64, {}).error, QString());
    }
    EXPECT_LT(peakMegabytes() - before, 400) << "a header was believed";
}

TEST(Hostile, PathsThatAreNoFiles) {
    const Folder folder;
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder("pipe.jpg")).constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(folder("nowhere"), folder("dangling.jpg")));
    EXPECT_EQ(read(QString()).error.toStdString(), "No file was named.");
    EXPECT_EQ(read(folder("missing.jpg")).error.toStdString(), "The file does not exist.");
    EXPECT_EQ(read(folder.path()).error.toStdString(), "This is a folder, not a file.");
    EXPECT_EQ(read(folder("pipe.jpg")).error.toStdString(), "This is a device or pipe, not a file.");
    EXPECT_NE(read(folder("dangling.jpg")).error.indexOf(u"link"_s), -1);
    EXPECT_EQ(files().imageSize(folder("missing.jpg")), QSize());
}

TEST(Hostile, ATruncatedFileIsNeverHalfAPicture) {
    const auto image = picture(300, 200);
    const auto compression = [](const QString &name) { return QVariantMap{{u"compression"_s, name}}; };
    const std::pair<const char *, QVariantMap> rows[] = {{"a.jpg", {}},
                                                         {"progressive.jpg", {{u"jpeg:progressive"_s, 1}}},
                                                         {"a.png", {}},
                                                         {"a.tif", {}},
                                                         {"zip.tif", compression(u"zip"_s)},
                                                         {"lzw.tif", compression(u"lzw"_s)},
                                                         {"a.webp", {}},
                                                         {"lossless.webp", compression(u"lossless"_s)},
                                                         {"a.bmp", {}},
                                                         {"a.dng", {}},
                                                         {"tiles.dng", {{u"compressed"_s, u"1"_s}}},
                                                         {"three-colours.heic", {}},
                                                         {"three-colours-turned.avif", {}}};
    for (const auto &[name, options] : rows) {
        const Folder folder;
        const QString sample = QStringLiteral(SAMPLES "/") + QString::fromUtf8(name);
        const bool written = !QFileInfo::exists(sample);
        if (written)
            mustWrite(image, folder(name), options);
        const QByteArray bytes = contents(written ? folder(name) : sample);
        const qsizetype size = bytes.size();
        std::vector<QByteArray> damaged;
        for (const qsizetype length : {qsizetype(8), qsizetype(200), qsizetype(64) << 10, size / 100,
                                       size / 10, size / 2, size * 9 / 10, size * 97 / 100})
            damaged.push_back(bytes.first(std::min(length, size * 97 / 100)));
        if (std::string(name) == "tiles.dng")
            damaged.push_back(QByteArray(bytes).replace(size / 2, size / 4, QByteArray(size / 4, '\xff')));
        // The preview of a sensor file must not pass for the picture, whatever the camera's ending.
        std::vector<const char *> shown = {name};
        if (std::string(name).ends_with("dng"))
            shown.insert(shown.end(), {"a.nef", "a.arw"});
        for (const QByteArray &part : damaged) {
            for (const char *as : shown) {
                SCOPED_TRACE(std::string(name) + " as " + as + " " + std::to_string(part.size()));
                setContents(folder(as), part);
                const ReadResult result = read(folder(as));
                EXPECT_FALSE(result.image);
                EXPECT_NE(result.error.toStdString(), "");
            }
        }
    }
}

TEST(Hostile, ADamagedProfileIsLeftOutAndThePictureIsSaved) {
    const QByteArray whole = wideProfile();
    const struct {
        const char *damage;
        qsizetype at;
        QByteArray bytes;
    } rows[] = {
        {"longer than it is", 0, big(std::uint32_t(whole.size() + 4))},
        {"no signature", 36, "xxxx"},
        {"too many tags", 128, big(9999)},
        {"a tag outside", 136, big(0x7fffff00)},
        {"no primaries", 132, QByteArray(100, 'x')},
    };
    for (const char *name : {"a.jpg", "a.png", "a.tif", "a.webp"}) {
        for (const auto &row : rows) {
            SCOPED_TRACE(std::string(name) + ", " + row.damage);
            const Folder folder;
            const bool compressed = std::string(name) == "a.png";
            const auto image = picture(40, 30);
            image->setIccProfile(compressed ? QByteArray() : whole);
            mustWrite(image, folder(name));
            setExif(folder(name), "Exif.Image.Orientation", "6");
            const QByteArray profile = QByteArray(whole).replace(row.at, row.bytes.size(), row.bytes);
            QByteArray bytes = contents(folder(name));
            if (compressed)
                bytes.insert(33, chunk("iCCP", QByteArray("p\0\0", 3) + qCompress(profile).mid(4)));
            else
                bytes.replace(bytes.indexOf(whole), whole.size(), profile);
            setContents(folder(name), bytes);
            const ReadResult result = mustRead(folder(name));
            EXPECT_EQ(result.image->iccProfile(), QByteArray());
            // The metadata library stops at this one, which stands before the rest in a WebP.
            const bool upright = row.at != 0 || !QByteArray(name).endsWith("webp");
            EXPECT_TRUE(!upright || result.image->width() == 30);
            for (const char *output : {"out.png", "out.jpg", "out.tif", "out.webp", "out.dng"})
                mustWrite(result.image, folder(output), {}, folder(name));
        }
    }
}

TEST(Hostile, DamageInsideTheDataIsNotPassedOver) {
    const auto image = picture(400, 300);
    for (const auto &[file, compression] : {std::pair("a.jpg", u"jpeg:90"_s), std::pair("a.png", u""_s),
                                            std::pair("zip.tif", u"zip"_s), std::pair("lzw.tif", u"lzw"_s)}) {
        SCOPED_TRACE(file);
        const Folder folder;
        const QString path = folder(file);
        mustWrite(image, path, {{u"compression"_s, compression}});
        QByteArray bytes = contents(path);
        for (qsizetype i = bytes.size() / 2; i < bytes.size() / 2 + 300; ++i)
            bytes[i] = char(bytes[i] ^ 0x5a);
        setContents(path, bytes);
        const ReadResult result = read(path);
        EXPECT_FALSE(result.image);
        EXPECT_TRUE(result.error.contains(u"data"_s)) << result.error.toStdString();
    }
}

TEST(Hostile, TheContentDecidesNotTheName) {
    const auto image = quarters(50, 40);
    for (const char *real : {"a.png", "a.jpg", "a.tif", "a.webp", "a.bmp", "a.dng"}) {
        for (const char *wrong : {"b.jpg", "b.png", "b.tif", "b.bmp"}) {
            SCOPED_TRACE(std::string(real) + " named " + wrong);
            const Folder folder;
            mustWrite(image, folder(real));
            setContents(folder(wrong), contents(folder(real)));
            const ReadResult result = mustRead(folder(wrong));
            EXPECT_GT(psnr(*result.image, *image), 20);
        }
    }
}
