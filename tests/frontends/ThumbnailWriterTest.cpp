#include "frontends/TThumbnailWriter.h"
#include "system/OSUtils.h"
#include "tests/fakes/FakeFiles.h"

#include "Support.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class Thumbnails : public testing::Test {
protected:
    Thumbnails() {
        OSUtils::clearThumbnailTempFiles();
        QVariantList list;
        for (int i = 0; i < 6; ++i) {
            const QString path = u"/%1.jpg"_s.arg(i);
            if (i != 3) // can't be read
                files->add(path);
            list << QVariantMap{{u"filepath"_s, path}};
        }
        writer->setImageDatas(list);
        writer->setImageData(4, {{u"filepath"_s, u"/4.jpg"_s}, {u"thumbnail"_s, u"/has one"_s}});
        writer->setImageData(6, {{u"filepath"_s, u"/closed meanwhile.jpg"_s}});
        QObject::connect(writer.get(), &TThumbnailWriter::thumbnailWritten, writer.get(),
                         [this](int index, const QString &path, const QString &thumbnail) {
                             EXPECT_EQ(path, u"/%1.jpg"_s.arg(index));
                             EXPECT_TRUE(QFile::exists(thumbnail));
                             written << index;
                         });
    }
    /// The first one is being made, and waits.
    bool begun() {
        files->readHold.close();
        writer->startGenerating();
        return eventually([this] { return files->thumbnails().size() == 1; });
    }

    std::shared_ptr<FakeFiles> files = std::make_shared<FakeFiles>();
    std::unique_ptr<TThumbnailWriter> writer = std::make_unique<TThumbnailWriter>(files);
    QList<int> written;
};

TEST_F(Thumbnails, VisibleImagesCurrentFirstAndBadOnesOnce) {
    QSignalSpy updated(writer.get(), &TThumbnailWriter::indexUpdated);
    writer->setStartIndex(1);
    writer->setEndIndex(4);
    writer->setCurrentIndex(2);
    EXPECT_EQ(updated.size(), 3);
    writer->startGenerating();
    ASSERT_TRUE(eventually([this] { return written.size() == 2 && files->thumbnails().size() == 3; }));
    EXPECT_EQ(written, QList<int>({2, 1})) << "3 can't be read, 4 has one";
    settle();
    writer->startGenerating();
    ASSERT_TRUE(eventually([this] { return written.size() == 4; }));
    EXPECT_EQ(files->thumbnails().size(), 3u) << "what lies on disk is told again without work";
}

TEST_F(Thumbnails, NewPlanDropsWhatHasNotBegun) {
    ASSERT_TRUE(begun());
    writer->setStartIndex(5);
    writer->startGenerating();
    files->readHold.open();
    ASSERT_TRUE(eventually([this] { return written.size() == 2; }));
    settle();
    EXPECT_EQ(written, QList<int>({0, 5}));
}

TEST_F(Thumbnails, DestructionMidWriteIsSilent) {
    ASSERT_TRUE(begun());
    writer.reset();
    settle();
    EXPECT_TRUE(written.isEmpty());
}

} // namespace
