#include "TestFiles.h"

#include <exiv2/exiv2.hpp>

#include <gtest/gtest.h>

using namespace testio;

namespace {

constexpr char MakerNote[] = "opaque maker data 0123456789";

std::unique_ptr<Exiv2::Image> open(const QString &path) {
    auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    image->readMetadata();
    return image;
}

std::string exif(const Exiv2::Image &image, const char *key) {
    const auto it = image.exifData().findKey(Exiv2::ExifKey(key));
    return it == image.exifData().end() ? "" : it->toString();
}

std::string xmp(const Exiv2::Image &image, const char *key) {
    const auto it = image.xmpData().findKey(Exiv2::XmpKey(key));
    return it == image.xmpData().end() ? "" : it->toString();
}

/// A file with everything a camera and an editor put in, some of it true of this picture only.
void writeSource(const QString &path) {
    ASSERT_EQ(write(picture(80, 50, 3, SampleType::UInt8), path).error.toStdString(), "");
    const auto image = open(path);
    Exiv2::ExifData &e = image->exifData();
    e["Exif.Image.Make"] = "Testmaker";
    e["Exif.Image.Model"] = "Model One";
    e["Exif.Image.Orientation"] = std::uint16_t(6);
    e["Exif.Image.Software"] = "Camera firmware 1.0";
    e["Exif.Image.Copyright"] = "Someone";
    e["Exif.Photo.ISOSpeedRatings"] = std::uint16_t(800);
    e["Exif.Photo.ExposureTime"] = Exiv2::URational(1, 250);
    e["Exif.Photo.FNumber"] = Exiv2::URational(28, 10);
    e["Exif.Photo.FocalLength"] = Exiv2::URational(50, 1);
    e["Exif.Photo.LensModel"] = "50mm F1.8";
    e["Exif.Photo.DateTimeOriginal"] = "2023:05:06 07:08:09";
    e["Exif.Photo.PixelXDimension"] = std::uint32_t(80);
    e["Exif.Photo.PixelYDimension"] = std::uint32_t(50);
    e["Exif.Photo.ColorSpace"] = std::uint16_t(2);
    Exiv2::DataValue note(reinterpret_cast<const Exiv2::byte *>(MakerNote), sizeof MakerNote);
    e.add(Exiv2::ExifKey("Exif.Photo.MakerNote"), &note);
    e["Exif.GPSInfo.GPSLatitudeRef"] = "S";
    e["Exif.GPSInfo.GPSLatitude"] = "12/1 30/1 0/1";
    const std::string thumbnail(500, 'x');
    Exiv2::ExifThumb(e).setJpegThumbnail(reinterpret_cast<const Exiv2::byte *>(thumbnail.data()),
                                         thumbnail.size());
    image->iptcData()["Iptc.Application2.Caption"] = "A caption";
    image->xmpData()["Xmp.dc.title"] = "lang=\"x-default\" A title";
    image->xmpData()["Xmp.tiff.Orientation"] = "6";
    image->xmpData()["Xmp.exif.PixelXDimension"] = "80";
    image->xmpData()["Xmp.xmp.CreatorTool"] = "Some editor";
    image->writeMetadata();
}

} // namespace

TEST(Metadata, IsReadForTheProgram) {
    const Folder folder;
    writeSource(folder("in.jpg"));
    const QVariantMap m = read(folder("in.jpg")).metadata;
    const auto number = [&](const char *key) { return m.value(QString::fromLatin1(key)).toDouble(); };
    EXPECT_EQ(m.value(QStringLiteral("make")).toString().toStdString(), "Testmaker");
    EXPECT_EQ(m.value(QStringLiteral("model")).toString().toStdString(), "Model One");
    EXPECT_EQ(m.value(QStringLiteral("lens")).toString().toStdString(), "50mm F1.8");
    EXPECT_EQ(number("iso"), 800);
    EXPECT_NEAR(number("exposureTime"), 0.004, 1e-9);
    EXPECT_NEAR(number("fNumber"), 2.8, 1e-9);
    EXPECT_EQ(number("focalLength"), 50);
    EXPECT_EQ(number("latitude"), -12.5);
    EXPECT_EQ(number("orientation"), 6);
    EXPECT_EQ(number("bitDepth"), 8);
    EXPECT_EQ(m.value(QStringLiteral("colorSpace")).toString().toStdString(), "Adobe RGB");
}

TEST(Metadata, IsCarriedWholeAndCorrected) {
    for (const char *input : {"in.jpg", "in.tif"}) {
        for (const char *output : {"out.jpg", "out.png", "out.tif", "out.webp", "out.dng"}) {
            SCOPED_TRACE(std::string(input) + " to " + output);
            const Folder folder;
            writeSource(folder(input));
            const QVariantMap imageData = {{QStringLiteral("resolution"), 118.11},
                                           {QStringLiteral("resolutionUnit"), 3}};
            const auto result = picture(100, 160, 3, SampleType::UInt8);
            const WriteResult w = write(result, folder(output), {}, imageData, folder(input));
            ASSERT_EQ(w.error.toStdString(), "");
            const auto back = open(folder(output));
            EXPECT_EQ(exif(*back, "Exif.Image.Make"), "Testmaker");
            EXPECT_EQ(exif(*back, "Exif.Image.Copyright"), "Someone");
            EXPECT_EQ(exif(*back, "Exif.Photo.ISOSpeedRatings"), "800");
            EXPECT_EQ(exif(*back, "Exif.Photo.LensModel"), "50mm F1.8");
            EXPECT_EQ(exif(*back, "Exif.GPSInfo.GPSLatitudeRef"), "S");
            const auto note = back->exifData().findKey(Exiv2::ExifKey("Exif.Photo.MakerNote"));
            ASSERT_NE(note, back->exifData().end());
            std::string bytes(note->size(), '\0');
            note->copy(reinterpret_cast<Exiv2::byte *>(bytes.data()), Exiv2::littleEndian);
            EXPECT_EQ(bytes, std::string(MakerNote, sizeof MakerNote));

            EXPECT_EQ(exif(*back, "Exif.Image.Orientation"), "1");
            EXPECT_EQ(exif(*back, "Exif.Image.Software"), "Orvane Studio " ORVANE_VERSION);
            EXPECT_EQ(exif(*back, "Exif.Photo.PixelXDimension"), "100");
            EXPECT_EQ(exif(*back, "Exif.Photo.PixelYDimension"), "160");
            EXPECT_EQ(exif(*back, "Exif.Photo.ColorSpace"), "1");
            const auto density = back->exifData().findKey(Exiv2::ExifKey("Exif.Image.XResolution"));
            EXPECT_NEAR(double(density->toFloat()), 118.11, 1e-4);
            EXPECT_EQ(exif(*back, "Exif.Image.ResolutionUnit"), "3");
            EXPECT_TRUE(Exiv2::ExifThumbC(back->exifData()).copy().empty());

            EXPECT_EQ(xmp(*back, "Xmp.dc.title"), "lang=\"x-default\" A title");
            EXPECT_EQ(xmp(*back, "Xmp.tiff.Orientation"), "1");
            EXPECT_EQ(xmp(*back, "Xmp.exif.PixelXDimension"), "100");
            EXPECT_EQ(xmp(*back, "Xmp.xmp.CreatorTool"), "Orvane Studio " ORVANE_VERSION);
            if (back->checkMode(Exiv2::mdIptc) & Exiv2::amWrite) {
                EXPECT_EQ(back->iptcData()["Iptc.Application2.Caption"].toString(), "A caption");
            }

            const ReadResult again = read(folder(output));
            ASSERT_TRUE(again.image) << again.error.toStdString();
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
    const ReadResult developed = read(raw);
    ASSERT_TRUE(developed.image) << developed.error.toStdString();
    for (const char *output : {"out.jpg", "out.tif", "out.png"}) {
        SCOPED_TRACE(output);
        ASSERT_EQ(write(developed.image, folder(output), {}, {}, raw).error.toStdString(), "");
        const auto back = open(folder(output));
        EXPECT_EQ(exif(*back, "Exif.Photo.ISOSpeedRatings"), "1600");
        EXPECT_EQ(exif(*back, "Exif.Image.Model"), "Model One");
        for (const char *key : {"Exif.Image.DNGVersion", "Exif.Image.ColorMatrix1",
                                "Exif.Image.AsShotNeutral", "Exif.Image.CFAPattern"})
            EXPECT_EQ(exif(*back, key), "") << key;
        EXPECT_GT(psnr(*read(folder(output)).image, *developed.image), 30);
    }
}

TEST(Metadata, TooMuchForAJpegIsCutDownAndTheRestStays) {
    const Folder folder;
    writeSource(folder("in.tif"));
    {
        const auto image = open(folder("in.tif"));
        const std::string large(90000, 'm');
        Exiv2::DataValue note(reinterpret_cast<const Exiv2::byte *>(large.data()), large.size());
        image->exifData()["Exif.Photo.MakerNote"].setValue(&note);
        image->writeMetadata();
    }
    const auto result = picture(80, 50, 3, SampleType::UInt8);
    ASSERT_EQ(write(result, folder("out.jpg"), {}, {}, folder("in.tif")).error.toStdString(), "");
    const auto back = open(folder("out.jpg"));
    EXPECT_EQ(exif(*back, "Exif.Image.Make"), "Testmaker");
    EXPECT_EQ(exif(*back, "Exif.Photo.MakerNote"), "");
    EXPECT_EQ(xmp(*back, "Xmp.dc.title"), "lang=\"x-default\" A title");
}
