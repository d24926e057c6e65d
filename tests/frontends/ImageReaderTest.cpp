#include "frontends/TImageReader.h"
#include "tests/fakes/FakeFiles.h"

#include "Support.h"

using namespace Qt::StringLiterals;

namespace {

class Reader : public testing::Test {
protected:
    Reader() {
        files->add(u"/a.jpg"_s, 8, 6);
        files->add(u"/b.jpg"_s, 4, 3);
        QObject::connect(&reader, &TImageReader::imagedataChanged, &reader, [this] {
            events << u"image "_s + reader.imagedata().value(u"filepath"_s).toString();
        });
        QObject::connect(&reader, &TImageReader::errorChanged, &reader,
                         [this] { events << u"error "_s + reader.error(); });
    }
    bool idle() {
        return eventually([this] { return !reader.loading(); });
    }
    bool loaded(const QString &path) {
        reader.setFilepath(path);
        return idle();
    }

    std::shared_ptr<FakeFiles> files = std::make_shared<FakeFiles>();
    TImageReader reader{files};
    QStringList events;
};

TEST_F(Reader, GivesTheImageMap) {
    reader.setApplyLensCorrection(true);
    reader.setFilepath(u"/a.jpg"_s);
    EXPECT_TRUE(reader.loading());
    EXPECT_TRUE(reader.imagedata().isEmpty());
    ASSERT_TRUE(idle());
    const QVariantMap image = reader.imagedata();
    EXPECT_TRUE(image.value(u"uid"_s).toString().contains(u"/a.jpg"_s));
    EXPECT_EQ(image.value(u"filepath"_s), u"/a.jpg"_s);
    EXPECT_EQ(image.value(u"image"_s).value<std::shared_ptr<ImageData>>()->width(), 8);
    EXPECT_EQ(image.value(u"metadata"_s).toMap().value(u"make"_s), u"Maker"_s);
    EXPECT_EQ(image.value(u"resolution"_s).toDouble(), 72);
    EXPECT_EQ(image.value(u"resolutionUnit"_s).toInt(), 2);
    EXPECT_TRUE(files->reads().front().applyLensCorrection);
}

TEST_F(Reader, SamePathLoadsAgainOnlyWhenForced) {
    ASSERT_TRUE(loaded(u"/a.jpg"_s));
    const QString uid = reader.imagedata().value(u"uid"_s).toString();
    reader.setFilepath(u"/a.jpg"_s);
    EXPECT_FALSE(reader.loading());
    reader.setFilepath(QString());
    EXPECT_TRUE(reader.imagedata().isEmpty());
    ASSERT_TRUE(loaded(u"/a.jpg"_s));
    EXPECT_NE(reader.imagedata().value(u"uid"_s).toString(), uid);
    reader.reload();
    ASSERT_TRUE(idle());
    EXPECT_EQ(files->reads().size(), 3u);
    EXPECT_EQ(events, QStringList({u"image /a.jpg"_s, u"image "_s, u"image /a.jpg"_s, u"image /a.jpg"_s}));
}

TEST_F(Reader, AbandonedLoadNeverReports) {
    for (const auto &[next, event] : {std::pair(u"/b.jpg"_s, u"image /b.jpg"_s), // another path
                                      std::pair(QString(), u"image "_s)}) {      // closed
        files->readHold.close();
        reader.setFilepath(u"/a.jpg"_s);
        ASSERT_TRUE(eventually([&] { return !files->reads().empty(); }));
        events.clear();
        reader.setFilepath(next);
        files->readHold.open();
        ASSERT_TRUE(idle());
        settle();
        EXPECT_EQ(events, QStringList(event));
    }
}

TEST_F(Reader, LoadThatWasReadyWhenAbandonedNeverReports) {
    reader.setFilepath(u"/missing.jpg"_s);
    while (files->reads().empty())
        std::this_thread::yield();
    ASSERT_TRUE(loaded(u"/a.jpg"_s));
    EXPECT_EQ(events, QStringList(u"image /a.jpg"_s));
}

TEST_F(Reader, ErrorIsToldAndTakenBack) {
    ASSERT_TRUE(loaded(u"/a.jpg"_s));
    events.clear();
    for (int again = 0; again < 2; ++again) {
        ASSERT_TRUE(loaded(u"/missing.jpg"_s));
        reader.setFilepath(QString());
    }
    EXPECT_EQ(events, QStringList({u"error Cannot read /missing.jpg"_s, u"error "_s, u"image "_s,
                                   u"error Cannot read /missing.jpg"_s, u"error "_s}));
}

TEST_F(Reader, BrokenBackEndAnswerIsAnError) {
    files->add(u"/empty.jpg"_s, ReadResult{});
    files->add(u"/null.jpg"_s, ReadResult{.image = std::make_shared<ImageData>()});
    for (const QString &path : {u"/empty.jpg"_s, u"/null.jpg"_s}) {
        ASSERT_TRUE(loaded(path));
        EXPECT_EQ(reader.error(), u"The file %1 could not be read."_s.arg(path));
    }
}

TEST(ReaderLife, WithoutLibraryReadingFailsAndDestructionIsSilent) {
    auto reader = std::make_unique<TImageReader>();
    reader->setFilepath(u"/a.jpg"_s);
    QSignalSpy error(reader.get(), &TImageReader::errorChanged);
    ASSERT_TRUE(error.wait());
    EXPECT_EQ(reader->error(), u"No image library is available."_s);

    const auto files = std::make_shared<FakeFiles>();
    files->readHold.close();
    setImageFileBackend(files);
    reader->reload();
    ASSERT_TRUE(eventually([&] { return !files->reads().empty(); }));
    reader.reset();
    setImageFileBackend(nullptr);
}

} // namespace
