#include "frontends/FileBackends.h"
#include "frontends/ImageDataUtils.h"
#include "frontends/TImageUtils.h"
#include "frontends/TMathUtils.h"
#include "tests/fakes/FakeFiles.h"

#include "Support.h"

#include <QTemporaryDir>

#include <numbers>

using namespace Qt::StringLiterals;

namespace {

TEST(ImageUtils, ExportExtension) {
    for (const auto &[original, format, colourUsed, expected] : {
             std::tuple(u"JPG"_s, u"preserve"_s, false, u"JPG"_s),
             std::tuple(u"heic"_s, u"preserve"_s, true, u"heic"_s),
             std::tuple(QString(), u"preserve"_s, false, QString()),
             std::tuple(u"NEF"_s, u"preserve"_s, false, u"dng"_s),
             std::tuple(u"nef"_s, u"preserve"_s, true, u"tiff"_s),
             std::tuple(u"DNG"_s, u"preserve"_s, false, u"DNG"_s),
             std::tuple(u"dng"_s, u"preserve"_s, true, u"tiff"_s),
             std::tuple(u"nef"_s, u"jpeg"_s, true, u"jpeg"_s),
             std::tuple(u"nef"_s, u"dng"_s, false, u"dng"_s),
             std::tuple(u"png"_s, u"dng"_s, false, u"tiff"_s),
             std::tuple(u"png"_s, u"TIFF"_s, false, u"tiff"_s),
         })
        EXPECT_EQ(TImageUtils::getExportExtension(original, format, colourUsed), expected)
            << original.toStdString() << " as " << format.toStdString();
}

TEST(ImageUtils, PathsOnDisk) {
    const QTemporaryDir folder;
    const auto at = [&](const QString &name) { return folder.filePath(name); };
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"v1.2/sub"_s));
    for (const QString &name : {u"a.jpg"_s, u"a-1.jpg"_s, u"v1.2/noext"_s, u".hidden"_s})
        EXPECT_TRUE(QFile(at(name)).open(QFile::WriteOnly)) << name.toStdString();
    ASSERT_TRUE(QFile::link(at(u"a.jpg"_s), at(u"link.jpg"_s)));
    ASSERT_TRUE(QFile::link(at(u"nowhere"_s), at(u"dangling.jpg"_s)));

    for (const auto &[path, expected] :
         {std::pair(u"new.jpg"_s, u"new.jpg"_s), std::pair(u"a.jpg"_s, u"a-2.jpg"_s),
          std::pair(u"v1.2/noext"_s, u"v1.2/noext-1"_s), std::pair(u"dangling.jpg"_s, u"dangling-1.jpg"_s)})
        EXPECT_EQ(TImageUtils::adjustPathWhenOverwriting(at(path)), at(expected));
    for (const auto &[a, b, same] :
         {std::tuple(u"a.jpg"_s, u"v1.2/../a.jpg"_s, true), std::tuple(u"a.jpg"_s, u"link.jpg"_s, true),
          std::tuple(u"new.jpg"_s, u"v1.2/sub/../../new.jpg"_s, true),
          std::tuple(u"a.jpg"_s, u"a-1.jpg"_s, false), std::tuple(u"new.jpg"_s, u"other.jpg"_s, false)})
        EXPECT_EQ(TImageUtils::arePathsEqual(at(a), at(b)), same)
            << a.toStdString() << " " << b.toStdString();
    EXPECT_FALSE(TImageUtils::arePathsEqual(QString(), at(u"a.jpg"_s)));
}

TEST(ImageUtils, PartsOfPaths) {
    const QString path = u"/pictures/v1.2/one.two.NEF"_s;
    EXPECT_EQ(TImageUtils::getExtension(path), u"NEF"_s);
    EXPECT_EQ(TImageUtils::getFilename(path), u"one.two.NEF"_s);
    EXPECT_EQ(TImageUtils::getPath(path), u"/pictures/v1.2"_s);
    EXPECT_TRUE(TImageUtils::isRawFile(path));
    const QString odd = u"/pictures/50% #1 ä.jpg"_s;
    EXPECT_EQ(TImageUtils::urlToString(TImageUtils::stringToUrl(odd)), odd);
    EXPECT_EQ(TImageUtils::urlToString(QUrl(u"https://example.org/a.jpg"_s)), u"https://example.org/a.jpg"_s);
}

TEST(ImageUtils, Rectangles) {
    const QRectF square(0, 0, 10, 10);
    EXPECT_TRUE(TImageUtils::doesRectCoverRect(square, square));
    EXPECT_TRUE(TImageUtils::doesRectCoverRect(square, {1, 1, 2, 2}));
    EXPECT_FALSE(TImageUtils::doesRectCoverRect(square, {9, 0, 2, 2})) << "sticks out";
    EXPECT_FALSE(TImageUtils::doesRectCoverRect({}, {0, 0, 1, 1})) << "nothing covers";

    const double side = (40 + 20) / std::numbers::sqrt2;
    for (const auto &[degrees, expected] :
         {std::pair(0, QRectF(10, 10, 40, 20)), std::pair(90, QRectF(20, 0, 20, 40)),
          std::pair(-45, QRectF(30 - side / 2, 20 - side / 2, side, side))}) {
        const QRectF bounds = TImageUtils::getBoundingRect({10, 10, 40, 20}, degrees);
        EXPECT_NEAR(bounds.x(), expected.x(), 1e-9) << degrees;
        EXPECT_NEAR(bounds.y(), expected.y(), 1e-9) << degrees;
        EXPECT_NEAR(bounds.width(), expected.width(), 1e-9) << degrees;
        EXPECT_NEAR(bounds.height(), expected.height(), 1e-9) << degrees;
    }
}

TEST(ImageUtils, ImagesInVariants) {
    const QVariant image = imageMap().value(u"image"_s);
    EXPECT_EQ(ImageDataUtils::imageSize(image), QSize(8, 6));
    struct Row {
        const char *name;
        QVariant value;
        bool empty, valid;
    };
    for (const Row &row :
         {Row{"image", image, false, true}, Row{"blank", ImageDataUtils::blankImage(), true, false},
          Row{"without pixels", QVariant::fromValue(std::make_shared<ImageData>()), true, false},
          Row{"undefined", {}, true, false}, Row{"null", QVariant::fromValue(nullptr), true, false},
          Row{"text", u"a"_s, true, true}}) {
        EXPECT_EQ(ImageDataUtils::isEmpty(row.value), row.empty) << row.name;
        EXPECT_EQ(TImageUtils::isValidVariant(row.value), row.valid) << row.name;
    }
    EXPECT_EQ(ImageDataUtils::imageSize({}), QSize(0, 0));
}

TEST(ImageUtils, SizeComesFromTheBackEndAndSoDoFormats) {
    EXPECT_FALSE(TImageUtils::imageSize(u"/a.jpg"_s).isValid());
    const auto files = std::make_shared<FakeFiles>();
    files->add(u"/a.jpg"_s, 30, 20);
    setImageFileBackend(files);
    EXPECT_EQ(TImageUtils::imageSize(u"/a.jpg"_s), QSize(30, 20));
    setImageFileBackend(nullptr);
}

TEST(ImageUtils, CameraMetadata) {
    const QVariantMap camera{{u"make"_s, u"Maker"_s}, {u"model"_s, u"One"_s}};
    EXPECT_TRUE(ImageDataUtils::isCameraInfoMissing({{u"make"_s, u"Maker"_s}, {u"model"_s, u" "_s}}));
    EXPECT_FALSE(ImageDataUtils::isCameraInfoMissing(camera));
    QVariantMap lens = camera;
    EXPECT_FALSE(ImageDataUtils::isLensCorrectable(lens));
    lens.insert({{u"lens"_s, u"50mm"_s}, {u"focalLength"_s, 50.0}});
    EXPECT_TRUE(ImageDataUtils::isLensCorrectable(lens));
    EXPECT_EQ(ImageDataUtils::iso({{u"iso"_s, u"800"_s}}), 800);
    EXPECT_EQ(ImageDataUtils::iso({{u"iso"_s, -1}}), 0);
}

TEST(MathUtils, BrushRadius) {
    const QSizeF image(3200, 100);
    EXPECT_NEAR(TMathUtils::mapBrushSize(0.5, image), 0.5, 1e-6);
    EXPECT_NEAR(TMathUtils::mapBrushSize(50 - 1e-9, image.transposed()), 100.5, 1e-6);
    EXPECT_NEAR(TMathUtils::mapBrushSize(50, image), 100, 1e-6);
    EXPECT_NEAR(TMathUtils::mapBrushSize(100, image), 400, 1e-6);
    EXPECT_NEAR(TMathUtils::mapBrushSize(50, {}), 0, 1e-6) << "no image";
}

} // namespace
