#include "PreviewStudio.h"

#include "app/Composition.h"
#include "frontends/TImageUtils.h"
#include "frontends/TImageWriter.h"

#include <QCoreApplication>
#include <QImage>
#include <QRandomGenerator>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr QSizeF View{47, 35};

/// A photograph-like picture: shades, edges, grain; alpha where the format has it.
QString picture(const QString &path, QImage::Format format) {
    QImage image(101, 77, format);
    QRandomGenerator random(11);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int grain = int(random.bounded(9000)) - 4500;
            const auto level = [grain](double share) {
                return quint16(qBound(0, int(share * 65535) + grain, 65535));
            };
            const bool block = (x / 13 + y / 17) % 2 != 0;
            image.setPixelColor(x, y,
                                QColor::fromRgba64(level(x / 190.0 + 0.1), level(block ? 0.7 : 0.35),
                                                   level(y / 150.0 + 0.05), quint16(65535 - 100 * x)));
        }
    }
    EXPECT_TRUE(image.save(path));
    return path;
}

const std::vector<Look> &looks() {
    static const std::vector<Look> all = {
        {"fitted", 0.45, {0, 0}},
        {"own size, middle", 1, {0.5, 0.5}},
        {"own size, lower right", 1, {1, 1}},
        {"enlarged, between pixels", 4, {0.213, 0.618}},
        {"cropped and turned", 1.5, {0.3, 0.7}, {0.15, 0.2, 0.6, 0.55}, 0.3},
    };
    return all;
}

class PreviewIsExport : public testing::Test {
protected:
    /// Looks around in one studio, exports there and in another one that has looked at nothing.
    void compare(PreviewStudio &studio, PreviewStudio &fresh) {
        const QRectF everything(QPointF(0, 0), QSizeF(studio.size()));
        const QVariantMap whole = fresh.exported(everything);
        for (const Look &look : looks()) {
            SCOPED_TRACE(look.name);
            const QRectF region = viewport.region(look, studio.size(), View);
            EXPECT_EQ(differenceOf(studio.preview(region), whole), "");
            if (look.rotation != 0) {
                // The export of a cropped picture processes the upright rectangle around the crop alone.
                const QRectF crop(look.crop.x() * everything.width(), look.crop.y() * everything.height(),
                                  look.crop.width() * everything.width(),
                                  look.crop.height() * everything.height());
                const QRectF bounds = TImageUtils::getBoundingRect(crop, qRadiansToDegrees(look.rotation));
                EXPECT_EQ(differenceOf(fresh.exported(bounds & everything), whole), "");
            }
        }
        EXPECT_EQ(differenceOf(studio.exported(everything), whole), "") << "after having looked around";
    }

    QTemporaryDir folder;
    Viewport viewport;
};

} // namespace

/// In 16 bit, which shows the smallest difference.
TEST_F(PreviewIsExport, EveryModel) {
    const QString path = picture(folder.filePath(u"deep.png"_s), QImage::Format_RGBA64);
    PreviewStudio studio(path), fresh(path);
    ASSERT_FALSE(studio.catalogue().isEmpty());
    for (const auto &[category, models] : studio.catalogue().asKeyValueRange()) {
        for (const QString &model : models.toMap().keys()) {
            SCOPED_TRACE((category + u'/' + model).toStdString());
            for (PreviewStudio *each : {&studio, &fresh}) {
                each->clear();
                each->add(category, category, model);
            }
            compare(studio, fresh);
        }
    }
}

/// One filter of each category in a row, each time with other models, in 8 bit.
TEST_F(PreviewIsExport, Stacks) {
    const QString path = picture(folder.filePath(u"shallow.png"_s), QImage::Format_RGB888);
    PreviewStudio studio(path), fresh(path);
    const QVariantMap catalogue = studio.catalogue();
    for (int row = 0; row < 3; ++row) {
        SCOPED_TRACE(row);
        for (PreviewStudio *each : {&studio, &fresh}) {
            each->clear();
            for (auto category = catalogue.begin(); category != catalogue.end(); ++category) {
                const QStringList models = category->toMap().keys();
                each->add(category.key(), category.key(), models[row % models.size()]);
            }
            const QStringList sharpen = catalogue.value(u"Sharpen"_s).toMap().keys();
            if (!sharpen.isEmpty())
                each->add(u"Sharpen2"_s, u"Sharpen"_s, sharpen[(row + 1) % sharpen.size()]);
        }
        compare(studio, fresh);
    }
}

/// The file that an export leaves holds the very pixels that were seen.
TEST_F(PreviewIsExport, WrittenFile) {
    const QString path = picture(folder.filePath(u"shallow.png"_s), QImage::Format_RGB888);
    PreviewStudio studio(path);
    for (const QString &category : {u"Denoise"_s, u"Sharpen"_s}) {
        const QStringList models = studio.catalogue().value(category).toMap().keys();
        ASSERT_FALSE(models.isEmpty());
        studio.add(category, category, models.first());
    }
    const QVariantMap seen = studio.preview(viewport.region(looks()[1], studio.size(), View));
    const QVariantMap result = studio.exported(QRectF(QPointF(0, 0), QSizeF(studio.size())));
    for (const QString &name : {u"out.png"_s, u"out.tif"_s}) {
        SCOPED_TRACE(name.toStdString());
        TImageWriter writer;
        QSignalSpy saved(&writer, &TImageWriter::imageSaved);
        QSignalSpy failed(&writer, &TImageWriter::errorSaving);
        const QString out = folder.filePath(name);
        writer.saveImage(result[u"image"_s].value<std::shared_ptr<ImageData>>(), path, out, studio.input(),
                         {});
        ASSERT_TRUE(QTest::qWaitFor([&] { return saved.size() + failed.size() > 0; }, 60000));
        ASSERT_EQ(failed.size(), 0) << failed[0][1].toString().toStdString();
        QVariantMap written = PreviewStudio::read(out);
        written[u"requestRoi"_s] = result[u"requestRoi"_s];
        EXPECT_EQ(differenceOf(seen, written), "");
    }
}

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.path());
    qputenv("TMPDIR", home.path().toUtf8());
    QCoreApplication::setOrganizationName(u"Orvane Works tests"_s);
    QCoreApplication::setApplicationName(u"preview"_s);
    // The disk of the machine that runs the tests is no concern of theirs.
    QSettings().setValue(u"checkDiskSpace"_s, false);
    const QCoreApplication application(argc, argv);
    joinBackends();
    return RUN_ALL_TESTS();
}
