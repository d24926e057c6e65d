#include "TestFiles.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <random>

using namespace testio;

namespace {

constexpr int MutationsPerSeed = 300;

/// One damaged copy: flipped bytes, large numbers written over, a part cut out or repeated, an end
/// cut off. Half of all damage falls into the first bytes, where headers are.
QByteArray mutated(QByteArray bytes, std::mt19937 &random) {
    const auto pick = [&](qsizetype below) {
        return qsizetype(random() % std::uint32_t(std::max<qsizetype>(1, below)));
    };
    const auto place = [&] {
        return pick(random() % 2 ? bytes.size() : std::min<qsizetype>(bytes.size(), 400));
    };
    static const QByteArray Numbers[] = {QByteArray(4, '\xff'),
                                         QByteArray(4, '\0'),
                                         QByteArray("\x7f\xff\xff\xff", 4),
                                         QByteArray("\xff\xff\xff\x7f", 4),
                                         QByteArray("\0\1", 2),
                                         QByteArray("\x80", 1)};
    for (qsizetype i = pick(4); i >= 0; --i) {
        switch (random() % 5) {
        case 0:
        case 1:
            bytes[place()] = char(random());
            break;
        case 2: {
            const QByteArray &number = Numbers[pick(std::size(Numbers))];
            bytes.replace(place(), number.size(), number);
            break;
        }
        case 3: {
            const qsizetype from = place();
            const QByteArray part = bytes.mid(from, 1 + pick(40));
            random() % 2 ? bytes.remove(from, part.size()) : bytes.insert(place(), part);
            break;
        }
        default:
            if (random() % 4 == 0)
                bytes.truncate(1 + place());
            break;
        }
        if (bytes.isEmpty())
            bytes = "x";
    }
    return bytes;
}

/// Small files of every kind, with profile and metadata, so that those are damaged as well.
std::vector<std::pair<std::string, QByteArray>> seeds() {
    std::vector<std::pair<std::string, QByteArray>> list;
    const Folder folder;
    const auto add = [&](const char *name, const ImageRef &image, const QVariantMap &options = {}) {
        EXPECT_EQ(write(image, folder(name), options).error.toStdString(), "");
        if (!std::string(name).ends_with("bmp"))
            setExif(folder(name), "Exif.Photo.LensModel", "A lens");
        list.emplace_back(name, contents(folder(name)));
    };
    const auto colour = picture(48, 32, 3, SampleType::UInt8);
    colour->setIccProfile(wideProfile());
    const auto deep = picture(48, 32, 4, SampleType::UInt16);
    add("a.jpg", colour);
    add("a.png", colour);
    add("alpha.png", deep);
    add("a.tif", deep, {{QStringLiteral("compression"), QStringLiteral("zip")}});
    add("lzw.tif", colour, {{QStringLiteral("compression"), QStringLiteral("lzw")}});
    add("a.webp", colour);
    add("a.bmp", colour);
    add("linear.dng", colour);
    add("tiles.dng", colour, {{QStringLiteral("compressed"), QStringLiteral("1")}});
    writeBayerDng(folder("bayer.dng"),
                  {{{0.2f, 0.2f, 0.2f}, {0.5f, 0.1f, 0.1f}, {0.1f, 0.3f, 0.2f}, {0.7f, 0.7f, 0.7f}}}, 48, 32);
    list.emplace_back("bayer.dng", contents(folder("bayer.dng")));
    list.emplace_back("bayer.nef", contents(folder("bayer.dng")));
    list.emplace_back("a.heic", contents(QStringLiteral(SAMPLES "/three-colours.heic")));
    list.emplace_back("a.avif", contents(QStringLiteral(SAMPLES "/three-colours-turned.avif")));
    return list;
}

void quiet(QtMsgType, const QMessageLogContext &, const QString &) {
}

} // namespace

TEST(Mutation, ThousandsOfDamagedFilesGiveAPictureOrASentence) {
    const QtMessageHandler loud = qInstallMessageHandler(quiet);
    std::mt19937 random(20240229);
    int opened = 0;
    int refused = 0;
    for (const auto &[name, bytes] : seeds()) {
        SCOPED_TRACE(name);
        const Folder folder;
        const QString path = folder(name.c_str());
        for (int i = 0; i < MutationsPerSeed; ++i) {
            setContents(path, mutated(bytes, random));
            QElapsedTimer time;
            time.start();
            const ReadResult result = read(path);
            files().imageSize(path);
            EXPECT_EQ(result.image == nullptr, !result.error.isEmpty());
            EXPECT_LT(time.elapsed(), 10000) << i;
            ++(result.image ? opened : refused);
        }
        // The damaged file as the source of metadata for a sound picture.
        for (int i = 0; i < MutationsPerSeed / 20; ++i) {
            setContents(path, mutated(bytes, random));
            const WriteResult written = write(quarters(8, 8), folder("out.jpg"), {}, {}, path);
            EXPECT_EQ(written.error.toStdString(), "");
        }
    }
    qInstallMessageHandler(loud);
    RecordProperty("opened", opened);
    RecordProperty("refused", refused);
    EXPECT_GT(opened, 100);
    EXPECT_GT(refused, 100);
}
