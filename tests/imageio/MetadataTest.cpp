#include "TestFiles.h"

#include <exiv2/exiv2.hpp>

using namespace testio;

namespace {

using Entries = std::vector<std::pair<const char *, std::string>>;

std::unique_ptr<Exiv2::Image> open(const QString &path) {
    auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    image->readMetadata();
    return image;
}

std::string value(const Exiv2::Image &image, const std::string &key) {
    const auto text = [](const auto &data, const auto &name) {
        const auto it = data.findKey(name);
        return it == data.end() ? "" : it->toString();
    };
    return key.starts_with("Xmp") ? text(image.xmpData(), Exiv2::XmpKey(key))
                                  : text(image.exifData(), Exiv2::ExifKey(key));
}

const Entries Carried = {{"Exif.Image.Make", "Testmaker"},
                         {"Exif.Image.Copyright", "Someone"},
                         {"Exif.Photo.ISOSpeedRatings", "800"},
                         {"Exif.Photo.LensModel", "50mm F1.8"},
                         {"Exif.Photo.MakerNote", "111 112 97 113 117 101 0 255"},
                         {"Exif.GPSInfo.GPSLatitudeRef", "S"},
                         {"Xmp.dc.title", "lang=\"x-default\" A title"}};

/// A file with everything a camera and an editor put in, some of it true of this picture only.
void writeSource(const QString &path) {
    mustWrite(picture(80, 50), path);
    const auto image = open(path);
    const Entries own = {{"Exif.Image.Model", "Model One"},
                         {"Exif.Image.Orientation", "6"},
                         {"Exif.Image.Software", "Camera firmware 1.0"},
                         {"Exif.Photo.ExposureTime", "1/250"},
                         {"Exif.Photo.FNumber", "28/10"},
                         {"Exif.Photo.FocalLength", "50/1"},
                         {"Exif.Photo.DateTimeOriginal", "2023:05:06 07:08:09"},
                         {"Exif.Photo.PixelXDimension", "80"},
                         {"Exif.Photo.PixelYDimension", "50"},
                         {"Exif.Photo.ColorSpace", "2"},
                         {"Exif.GPSInfo.GPSLatitude", "12/1 30/1 0/1"},
                         {"Xmp.tiff.Orientation", "6"},
                         {"Xmp.exif.PixelXDimension", "80"},
                         {"Xmp.xmp.CreatorTool", "Some editor"}};
    for (const Entries &entries : {Carried, own}) {
        for (const auto &[key, text] : entries) {
            if (*key == 'X')
                image->xmpData()[key] = text;
            else
                image->exifData()[key] = text;
        }
    }
    const std::string thumbnail(500, 'x');
    Exiv2::ExifThumb(image->exifData())
        .setJpegThumbnail(reinterpret_cast<const Exiv2::byte *>(thumbnail.data()), thumbnail.size());
    image->iptcData()["Iptc.Application2.Caption"] = "A caption";
    image->writeMetadata();
}

} // namespace

TEST(Metadata, IsReadForTheProgram) {
    const Folder folder;
    writeSource(folder("in.jpg"));
    const QVariantMap m = read(folder("in.jpg")).metadata;
    for (const auto &[key, text] : {std::pair("make", "Testmaker"), std::pair("model", "Model One"),
                                    std::pair("lens", "50mm F1.8"), std::pair("colorSpace", "Adobe RGB")})
        EXPECT_EQ(m.value(QLatin1String(key)).toString().toStdString(), text);
    for (const auto &[key, number] :
         {std::pair("iso", 800.0), std::pair("exposureTime", 0.004), std::pair("fNumber", 2.8),
          std::pair("focalLength", 50.0), std::pair("latitude", -12.5), std::pair("orientation", 6.0),
          std::pair("bitDepth", 8.0)})
        EXPECT_NEAR(m.value(QLatin1String(key)).toDouble(), number, 1e-9) << key;
}

TEST(Metadata, IsCarriedWholeAndCorrected) {
    const Entries corrected = {{"Exif.Image.Orientation", "1"},
                               {"Exif.Image.Software", "Orvane Studio " ORVANE_VERSION},
                               {"Exif.Photo.PixelXDimension", "100"},
                               {"Exif.Photo.PixelYDimension", "160"},
                               {"Exif.Photo.ColorSpace", "1"},
                               {"Exif.Image.ResolutionUnit", "3"},
                               {"Xmp.tiff.Orientation", "1"},
                               {"Xmp.exif.PixelXDimension", "100"},
                               {"Xmp.xmp.CreatorTool", "Orvane Studio " ORVANE_VERSION}};
    const QVariantMap imageData = {{u"resolution"_s, 118.11}, {u"resolutionUnit"_s, 3}};
    const auto result = picture(100, 160);
    for (const char *input : {"in.jpg", "in.tif"}) {
        for (const char *output : {"out.jpg", "out.png", "out.tif", "out.webp", "out.dng"}) {
            SCOPED_TRACE(std::string(input) + " to " + output);
            const Folder folder;
            writeSource(folder(input));
            const WriteResult w = write(result, folder(output), {}, imageData, folder(input));
            ASSERT_EQ(w.error.toStdString(), "");
            const auto back = open(folder(output));
            for (const Entries &entries : {Carried, corrected}) {
                for (const auto &[key, text] : entries)
                    EXPECT_EQ(value(*back, key), text) << key;
            }
            const auto density = back->exifData().findKey(Exiv2::ExifKey("Exif.Image.XResolution"));
            EXPECT_NEAR(double(density->toFloat()), 118.11, 1e-4);
            EXPECT_TRUE(Exiv2::ExifThumbC(back->exifData()).copy().empty());
            if (back->checkMode(Exiv2::mdIptc) & Exiv2::amWrite) {
                EXPECT_EQ(back->iptcData()["Iptc.Application2.Caption"].toString(), "A caption");
            }

            const ReadResult again = mustRead(folder(output));
            EXPECT_EQ(again.image->width(), 100);
            EXPECT_NEAR(again.resolution, 118.11, 0.05);
            EXPECT_EQ(again.resolutionUnit, 3);
        }
    }
}

TEST(Metadata, OfARawFileIsCarriedWithoutItsSensorsDescription) {
    const Folder folder;
    const QString raw = folder("in.dng");
    writeBayerDng(raw, {{{0.2f, 0.2f, 0.2f}, {0.5f, 0.5f, 0.5f}, {0.1f, 0.3f, 0.2f}, {0.7f, 0.7f, 0.7f}}});
    setExif(raw, "Exif.Photo.ISOSpeedRatings", "1600");
    const ReadResult developed = mustRead(raw);
    for (const char *output : {"out.jpg", "out.tif", "out.png"}) {
        SCOPED_TRACE(output);
        mustWrite(developed.image, folder(output), {}, raw);
        const auto back = open(folder(output));
        EXPECT_EQ(value(*back, "Exif.Photo.ISOSpeedRatings"), "1600");
        EXPECT_EQ(value(*back, "Exif.Image.Model"), "Model One");
        for (const char *key : {"Exif.Image.DNGVersion", "Exif.Image.ColorMatrix1",
                                "Exif.Image.AsShotNeutral", "Exif.Image.CFAPattern"})
            EXPECT_EQ(value(*back, key), "") << key;
        EXPECT_GT(psnr(*read(folder(output)).image, *developed.image), 30);
    }
}

TEST(Metadata, TooMuchForAJpegIsCutDownAndTheRestStays) {
    const Folder folder;
    writeSource(folder("in.tif"));
    setExif(folder("in.tif"), "Exif.Photo.MakerNote",
            QByteArray("7 ").repeated(90000).chopped(1).toStdString());
    mustWrite(picture(80, 50), folder("out.jpg"), {}, folder("in.tif"));
    const auto back = open(folder("out.jpg"));
    EXPECT_EQ(value(*back, "Exif.Image.Make"), "Testmaker");
    EXPECT_EQ(value(*back, "Exif.Photo.MakerNote"), "");
    EXPECT_EQ(value(*back, "Xmp.dc.title"), "lang=\"x-default\" A title");
}
