#include "TestFiles.h"

#include <QElapsedTimer>

#include <random>

using namespace testio;

namespace {

constexpr int MutationsPerSeed = 300;

/// One damaged copy. Half of all damage falls into the first bytes, where headers are.
QByteArray mutated(QByteArray bytes, std::mt19937 &random) {
    const auto pick = [&](qsizetype below) {
        return qsizetype(random() % std::uint32_t(std::max<qsizetype>(1, below)));
    };
    const auto place = [&] {
        return pick(random() % 2 ? bytes.size() : std::min<qsizetype>(bytes.size(), 400));
    };
    const auto numbers = {"ffffffff", "00000000", "7fffffff", "ffffff7f", "0001", "80"};
    for (qsizetype i = pick(4); i >= 0; --i) {
        const auto kind = random() % 5;
        if (kind < 2) {
            bytes[place()] = char(random());
        } else if (kind == 2) {
            const QByteArray number = QByteArray::fromHex(numbers.begin()[pick(qsizetype(numbers.size()))]);
            bytes.replace(place(), number.size(), number);
        } else if (kind == 3) {
            const qsizetype from = place();
            const QByteArray part = bytes.mid(from, 1 + pick(40));
            random() % 2 ? bytes.remove(from, part.size()) : bytes.insert(place(), part);
        } else if (random() % 4 == 0) {
            bytes.truncate(1 + place());
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
        mustWrite(image, folder(name), options);
        if (!std::string(name).ends_with("bmp"))
            setExif(folder(name), "Exif.Photo.LensModel", "A lens");
        list.emplace_back(name, contents(folder(name)));
    };
    const auto colour = picture(48, 32);
    colour->setIccProfile(wideProfile());
    const auto deep = picture(48, 32, 4, SampleType::UInt16);
    add("a.jpg", colour);
    add("a.png", colour);
    add("alpha.png", deep);
    add("a.tif", deep, {{u"compression"_s, u"zip"_s}});
    add("lzw.tif", colour, {{u"compression"_s, u"lzw"_s}});
    add("a.webp", colour);
    add("a.bmp", colour);
    add("linear.dng", colour);
    add("tiles.dng", colour, {{u"compressed"_s, u"1"_s}});
    writeBayerDng(folder("bayer.dng"),
                  {{{0.2f, 0.2f, 0.2f}, {0.5f, 0.1f, 0.1f}, {0.1f, 0.3f, 0.2f}, {0.7f, 0.7f, 0.7f}}}, 48, 32);
    list.emplace_back("bayer.dng", contents(folder("bayer.dng")));
    list.emplace_back("bayer.nef", contents(folder("bayer.dng")));
    list.emplace_back("a.heic", contents(QStringLiteral(SAMPLES "/three-colours.heic")));
    list.emplace_back("a.avif", contents(QStringLiteral(SAMPLES "/three-colours-turned.avif")));
    return list;
}

} // namespace

TEST(Mutation, ThousandsOfDamagedFilesGiveAPictureOrASentence) {
    const QtMessageHandler loud =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    std::mt19937 random(20240229);
    int opened = 0, refused = 0;
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
            mustWrite(quarters(8, 8), folder("out.jpg"), {}, path);
        }
    }
    qInstallMessageHandler(loud);
    EXPECT_GT(opened, 100);
    EXPECT_GT(refused, 100);
}
