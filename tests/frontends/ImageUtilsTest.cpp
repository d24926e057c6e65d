#include "frontends/FileBackends.h"
#include "frontends/ImageDataUtils.h"
#include "frontends/TImageUtils.h"
#include "frontends/TMathUtils.h"
#include "tests/fakes/FakeFiles.h"

#include "Support.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <numbers>

using namespace Qt::StringLiterals;

namespace {

TEST(ImageUtils, ExportExtension) {
    struct Row {
        QString original, format;
        bool colourUsed;
        QString expected;
    };
    for (const Row &row : {
             Row{u"JPG"_s, u"preserve"_s, false, u"JPG"_s},
             Row{u"heic"_s, u"preserve"_s, true, u"heic"_s},
             Row{QString(), u"preserve"_s, false, QString()},
             Row{u"NEF"_s, u"preserve"_s, false, u"dng"_s},
             Row{u"nef"_s, u"preserve"_s, true, u"tiff"_s},
             Row{u"DNG"_s, u"preserve"_s, false, u"DNG"_s},
             Row{u"dng"_s, u"preserve"_s, true, u"tiff"_s},
             Row{u"nef"_s, u"jpeg"_s, true, u"jpeg"_s},
             Row{u"nef"_s, u"dng"_s, false, u"dng"_s},
             Row{u"png"_s, u"dng"_s, false, u"tiff"_s},
             Row{u"png"_s, u"TIFF"_s, false, u"tiff"_s},
         })
        EXPECT_EQ(TImageUtils::getExportExtension(row.original, row.format, row.colourUsed), row.expected)
            << row.original.toStdString() << " as " << row.format.toStdString();
}

TEST(ImageUtils, PathsOnDisk) {
    const QTemporaryDir folder;
    const auto at = [&](const QString &name) { return folder.filePath(name); };
    const auto touch = [&](const QString &name) {
        EXPECT_TRUE(QFile(at(name)).open(QFile::WriteOnly)) << name.toStdString();
    };
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"v1.2/sub"_s));
    for (const QString &name : {u"a.jpg"_s, u"a-1.jpg"_s, u"v1.2/noext"_s, u".hidden"_s})
        touch(name);
    ASSERT_TRUE(QFile::link(at(u"a.jpg"_s), at(u"link.jpg"_s)));
    ASSERT_TRUE(QFile::link(at(u"nowhere"_s), at(u"dangling.jpg"_s)));

    struct Free {
        QString path, expected;
    };
    for (const Free &row :
         {Free{u"new.jpg"_s, u"new.jpg"_s}, Free{u"a.jpg"_s, u"a-2.jpg"_s},
          Free{u"v1.2/noext"_s, u"v1.2/noext-1"_s}, Free{u"dangling.jpg"_s, u"dangling-1.jpg"_s}})
        EXPECT_EQ(TImageUtils::adjustPathWhenOverwriting(at(row.path)), at(row.expected));

    struct Same {
        QString a, b;
        bool same;
    };
    for (const Same &row : {Same{u"a.jpg"_s, u"v1.2/../a.jpg"_s, true}, Same{u"a.jpg"_s, u"link.jpg"_s, true},
                            Same{u"new.jpg"_s, u"v1.2/sub/../../new.jpg"_s, true},
                            Same{u"a.jpg"_s, u"a-1.jpg"_s, false}, Same{u"new.jpg"_s, u"other.jpg"_s, false}})
        EXPECT_EQ(TImageUtils::arePathsEqual(at(row.a), at(row.b)), row.same)
            << row.a.toStdString() << " " << row.b.toStdString();
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
    struct Cover {
        const char *name;
        QRectF outer, inner;
        bool covers;
    };
    for (const Cover &row : {Cover{"itself", {0, 0, 10, 10}, {0, 0, 10, 10}, true},
                             Cover{"inside", {0, 0, 10, 10}, {1, 1, 2, 2}, true},
                             Cover{"sticks out", {0, 0, 10, 10}, {9, 0, 2, 2}, false},
                             Cover{"nothing covers", {}, {0, 0, 1, 1}, false}})
        EXPECT_EQ(TImageUtils::doesRectCoverRect(row.outer, row.inner), row.covers) << row.name;

    struct Bounds {
        const char *name;
        double degrees;
        QRectF expected;
    };
    const double side = (40 + 20) / std::numbers::sqrt2;
    for (const Bounds &row : {Bounds{"unturned", 0, {10, 10, 40, 20}}, Bounds{"quarter", 90, {20, 0, 20, 40}},
                              Bounds{"eighth", -45, {30 - side / 2, 20 - side / 2, side, side}}}) {
        const QRectF bounds = TImageUtils::getBoundingRect({10, 10, 40, 20}, row.degrees);
        EXPECT_NEAR(bounds.x(), row.expected.x(), 1e-9) << row.name;
        EXPECT_NEAR(bounds.y(), row.expected.y(), 1e-9) << row.name;
        EXPECT_NEAR(bounds.width(), row.expected.width(), 1e-9) << row.name;
        EXPECT_NEAR(bounds.height(), row.expected.height(), 1e-9) << row.name;
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
    struct Row {
        const char *name;
        double size;
        QSizeF image;
        double radius;
    };
    for (const Row &row :
         {Row{"smallest", 0.5, {3200, 100}, 0.5}, Row{"just below the middle", 50 - 1e-9, {100, 3200}, 100.5},
          Row{"middle", 50, {3200, 100}, 100}, Row{"largest", 100, {3200, 100}, 400},
          Row{"no image", 50, {}, 0}})
        EXPECT_NEAR(TMathUtils::mapBrushSize(row.size, row.image), row.radius, 1e-6) << row.name;
}

} // namespace
