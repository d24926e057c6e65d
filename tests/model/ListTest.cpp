#include "ModelHarness.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString makeFile(const QTemporaryDir &dir, const QString &name, qint64 size) {
    QFile file(dir.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(size));
    return file.fileName();
}

QStringList paths(const char *names) {
    return QString::fromLatin1(names).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

TEST(ImageList, OpeningFiresInOrder) {
    struct Row {
        const char *name;
        const char *urls;
        bool dontSwitch;
        std::string fires;
        int current;
    };
    const Row rows[] = {
        {"new ones", "/x.jpg /y.jpg", false, Switch + " loadedImages imagesOpened", 3},
        {"new ones, no switch", "/x.jpg", true, "loadedImages imagesOpened", 0},
        {"new after old", "/c.nef /x.jpg /x.jpg", false, Switch + " loadedImages imagesOpened", 3},
        {"duplicates only", "/c.nef /b.jpg", false, Switch, 2},
        {"the current one again", "/a.jpg", false, "", 0},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        ThreeImages c;
        SignalRecorder recorder(c);
        c.loadImages(paths(row.urls), row.dontSwitch);
        EXPECT_EQ(recorder.take(), row.fires);
        EXPECT_EQ(c.currentIndex(), row.current);
    }

    TControls c;
    const QSignalSpy opened(&c, &TControls::imagesOpened);
    c.loadImages({u"/a.jpg"_s});
    c.loadImages({u"/a.jpg"_s, u"/none.jpg"_s, u"/none.jpg"_s});
    ASSERT_EQ(opened.size(), 2);
    EXPECT_EQ(opened.last().first().toStringList(), QStringList(u"/none.jpg"_s));
    EXPECT_EQ(c.currentImageData(), QVariantMap({{u"filepath"_s, u"/none.jpg"_s},
                                                 {u"fileSize"_s, 0},
                                                 {u"rotation"_s, 0},
                                                 {u"cropRoi"_s, QRectF(0, 0, 1, 1)},
                                                 {u"cropRatio"_s, QSizeF(0, 0)}}));
}

TEST(ImageList, BadIndicesAreLogged) {
    TControls c;
    SignalRecorder recorder(c);
    const QStringList texts = criticalMessages([&c] {
        c.loadImages({});
        c.setCurrentIndex(-2);
        c.closeImage(4);
        EXPECT_TRUE(c.getControls(-1).isEmpty() && c.getImageData(5).isEmpty());
        c.setControls(0, {});
        c.setThumbnail(9, u"/t.png"_s);
        c.setJustSaved(-1);
        EXPECT_TRUE(c.getFilterOrder(3).isEmpty() && c.getFilterNamesForFilename(-1).isEmpty());
    });
    const char *expected[] = {
        "Attempted to set index out of range: 0 images loaded, but setting index to 0",
        "Attempted to set index out of range: 0 images loaded, but setting index to -2",
        "Attempted to close image index out of range: 0 images loaded, but closing index 4",
        "Getting controls from an invalid index: 0 images loaded, but using index of -1",
        "Getting data from an invalid index: 0 images loaded, but using index of 5",
        "Attempting to set controls of an invalid index: 0 images loaded, but using index of 0"};
    ASSERT_EQ(texts.size(), std::ssize(expected));
    for (qsizetype i = 0; i < texts.size(); ++i)
        EXPECT_EQ(texts.at(i).toStdString(), expected[i]);
    EXPECT_EQ(recorder.take(), "");
}

TEST(ImageList, ClosingFiresInOrder) {
    struct Row {
        const char *name;
        std::function<void(C)> run;
        std::string fires;
        const char *left;
        int current;
        QList<int> selected;
    };
    const std::string all = "selectedImages loadedImages imagesClosed";
    const auto noSelection = [](C c) {
        c.setSelectedImages({});
        c.closeSelectedImages();
    };
    const Row rows[] = {
        {"other", [](C c) { c.closeImage(1); }, "loadedImages imagesClosed", "/a.jpg /c.nef", 2, {0, 2, 7}},
        {"selected", [](C c) { c.closeImage(2); }, all, "/a.jpg /b.jpg", 2, {0, 7}},
        {"selection", &TControls::closeSelectedImages, all + ' ' + Switch, "/b.jpg", 0, {}},
        {"no selection", noSelection, "selectedImages " + Switch, "/a.jpg /b.jpg /c.nef", 0, {}},
        {"all", &TControls::reset, all + ' ' + Switch, "", -1, {}},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        ThreeImages c;
        c.setCurrentIndex(2);
        c.setSelectedImages({0, 2, 7, 2});
        SignalRecorder recorder(c);
        row.run(c);
        EXPECT_EQ(recorder.take(), row.fires);
        EXPECT_EQ(c.loadedImages(), paths(row.left));
        EXPECT_EQ(c.currentIndex(), row.current);
        EXPECT_EQ(c.selectedImages(), row.selected);
        EXPECT_EQ(c.size(), c.loadedImages().size());
    }

    ThreeImages c;
    c.setSelectedImages({0, 1, 2, 9});
    const QSignalSpy closed(&c, &TControls::imagesClosed);
    c.closeSelectedImages();
    ASSERT_EQ(closed.size(), 1);
    EXPECT_EQ(closed.first().first().toInt(), 4);
    EXPECT_EQ(c.currentIndex(), -1);
}

TEST(ImageList, ThumbnailsGoWithTheImageUnlessItIsRecent) {
    const QTemporaryDir dir;
    const QString image = makeFile(dir, u"image.jpg"_s, 3);
    const auto stays = [&](const QString &name, bool recent, const std::function<void(C)> &close) {
        const QString thumbnail = makeFile(dir, name, 3);
        QSettings().setValue(u"recentFiles"_s, recent ? QStringList(image) : QStringList());
        TControls c;
        c.loadImages({image});
        c.setThumbnail(0, thumbnail);
        c.setSelectedImages({0});
        close(c);
        return QFile::exists(thumbnail);
    };
    const auto one = [](C c) { c.closeImage(0); };
    EXPECT_FALSE(stays(u"thumb.png"_s, false, one));
    EXPECT_FALSE(stays(u"thumb.png"_s, false, &TControls::closeSelectedImages));
    EXPECT_TRUE(stays(u"thumb.png"_s, true, one));
    EXPECT_TRUE(stays(u"image.jpg"_s, false, one)) << "the picture is its own thumbnail";
}

TEST(ImageList, UploadableFiles) {
    const QTemporaryDir dir;
    const auto uploadable = [&dir](const QString &name, qint64 size) {
        TControls c;
        const QString path = makeFile(dir, name, size);
        EXPECT_FALSE(c.isFileUploadable(path)) << "not open";
        c.loadImages({path});
        // Without filters an image differs from what Autopilot gives.
        EXPECT_EQ(c.hasS3UploadableImages(), c.isFileUploadable(path));
        return c.isFileUploadable(path);
    };
    EXPECT_TRUE(uploadable(u"a.NEF"_s, 73'400'319));
    EXPECT_FALSE(uploadable(u"b.nef"_s, 73'400'320));
    EXPECT_FALSE(uploadable(u"c.nef"_s, 0));
    EXPECT_FALSE(uploadable(u"d.jpg"_s, 10));
    EXPECT_FALSE(uploadable(u"e.x.nef"_s, 10)) << "the complete suffix counts";
}
