#include "frontends/TImageWriter.h"
#include "tests/fakes/FakeFiles.h"

#include "Support.h"

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<ImageData> picture(int width = 8) {
    return std::make_shared<ImageData>(width, 6, 3, SampleType::UInt8);
}

class Writer : public testing::Test {
protected:
    Writer() {
        QObject::connect(writer.get(), &TImageWriter::imageSaved, writer.get(),
                         [this](const QString &path, qlonglong) { answers << path; });
        QObject::connect(
            writer.get(), &TImageWriter::errorSaving, writer.get(),
            [this](const QString &path, const QString &why) { answers << path + u": "_s + why; });
    }
    void save(const QStringList &paths) {
        for (const QString &path : paths)
            writer->saveImage(picture(), u"/in.jpg"_s, path, imageMap(), {});
    }
    bool answered(int count) {
        return eventually([=, this] { return answers.size() == count; });
    }

    std::shared_ptr<FakeFiles> files = std::make_shared<FakeFiles>();
    std::unique_ptr<TImageWriter> writer = std::make_unique<TImageWriter>(files);
    QStringList answers;
};

TEST_F(Writer, EachSaveIsAnsweredOnceAndProgressNamesTheOutput) {
    QSignalSpy progress(writer.get(), &TImageWriter::writeProgress);
    files->failWriting(u"/full"_s, u"The disk is full."_s);
    const QVariantMap options{{u"Compression"_s, u"jpeg:95"_s}};
    writer->saveImage(picture(), u"/in.jpg"_s, u"/out"_s, imageMap(), options);
    save({u"/full"_s});
    writer->saveImage(nullptr, u"/in.jpg"_s, u"/none"_s, {}, {});
    save({QString(), u"/out"_s});
    ASSERT_TRUE(answered(5));
    settle();
    EXPECT_EQ(answers, QStringList({u"/out"_s, u"/full: The disk is full."_s,
                                    u"/none: There is no picture to write."_s,
                                    u": There is no path to write the picture to."_s, u"/out"_s}));
    ASSERT_EQ(progress.size(), 3);
    EXPECT_EQ(progress.at(0), QVariantList({u"/out"_s, 0.5}));
    const WriteRequest request = files->written().front();
    EXPECT_EQ(request.inputPath, u"/in.jpg"_s);
    EXPECT_EQ(request.options, options);
    EXPECT_EQ(request.imageData.value(u"uid"_s), imageMap().value(u"uid"_s));
}

TEST_F(Writer, QueueIsBoundByCountAndBytes) {
    struct Row {
        const char *name;
        int images;
        qint64 bytes;
        QList<bool> canWrite; ///< after each of three saves
    };
    for (const Row &row :
         {Row{"two images", 2, 1 << 20, {true, false, false}}, Row{"one", 1, 1 << 20, {false, false, false}},
          Row{"first fills the bytes", 9, 8 * 6 * 3, {false, false, false}},
          Row{"second does", 9, 8 * 6 * 3 + 1, {true, false, false}}}) {
        SCOPED_TRACE(row.name);
        answers.clear();
        files->writeHold.close();
        writer->setQueueLimits(row.images, row.bytes);
        QSignalSpy changed(writer.get(), &TImageWriter::canWriteChanged);
        for (int i = 0; i < 3; ++i) {
            save({QString::number(i)});
            EXPECT_EQ(writer->canWrite(), row.canWrite.at(i)) << i;
        }
        files->writeHold.open();
        ASSERT_TRUE(answered(3)) << "no picture is refused";
        EXPECT_TRUE(writer->canWrite());
        EXPECT_EQ(changed.size(), 2) << "once shut, once open";
    }
}

TEST_F(Writer, CancelledWritesReportAnError) {
    files->writeHold.close();
    save({u"/a"_s, u"/b"_s, u"/a"_s});
    writer->cancelExport(u"/a"_s);
    writer->cancelExport(u"/unknown"_s);
    ASSERT_TRUE(answered(1));
    files->writeHold.open();
    ASSERT_TRUE(answered(3));
    EXPECT_EQ(answers,
              QStringList({u"/a: Saving was cancelled."_s, u"/b"_s, u"/a: Saving was cancelled."_s}));
}

TEST_F(Writer, DestructionFinishesWhatWasNotCancelled) {
    files->writeHold.close();
    save({u"/a"_s, u"/b"_s, u"/c"_s});
    writer->cancelExport(u"/b"_s);
    std::jthread opener([this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        files->writeHold.open();
    });
    writer.reset();
    ASSERT_EQ(files->written().size(), 2u);
    EXPECT_EQ(files->written().back().outputPath, u"/c"_s);
    settle();
    EXPECT_TRUE(answers.isEmpty());
}

TEST_F(Writer, EstimatesAreAnsweredEachAndSharedWhenEqual) {
    QSignalSpy estimated(writer.get(), &TImageWriter::fileSizeEstimated);
    const QVariantMap image = imageMap();
    for (const int level : {2, 2, 9})
        writer->estimateFileSize(image, u"png"_s, {{u"level"_s, level}});
    ASSERT_TRUE(eventually([&] { return estimated.size() == 3; }));
    writer->estimateFileSize(image, u"png"_s, {{u"level"_s, 2}});
    ASSERT_TRUE(eventually([&] { return estimated.size() == 4; }));
    EXPECT_EQ(files->estimates().size(), 2u);
    for (const auto &arguments : estimated) {
        EXPECT_EQ(arguments.at(0).toString(), u"/pictures/a.jpg"_s);
        EXPECT_EQ(arguments.at(1).toString(), u"png"_s);
        EXPECT_EQ(arguments.at(3).toLongLong(), 8 * 6 * 3);
    }
    EXPECT_EQ(estimated.back().at(2).toMap().value(u"level"_s).toInt(), 2);
}

TEST_F(Writer, FailedEstimateReportsUnderTheInputsPathAndIsTriedAgain) {
    files->failWriting(u"/pictures/a.jpg"_s, u"No encoder."_s);
    writer->estimateFileSizeRequest(imageMap());
    ASSERT_TRUE(answered(1));
    writer->estimateFileSizeRequest(imageMap());
    ASSERT_TRUE(answered(2));
    EXPECT_EQ(answers, QStringList(2, u"/pictures/a.jpg: No encoder."_s));
}

TEST_F(Writer, NegativeWithoutCameraIsTold) {
    QSignalSpy missing(writer.get(), &TImageWriter::missingCameraInfo);
    QVariantMap known = imageMap();
    known.insert(u"metadata"_s, QVariantMap{{u"make"_s, u"Maker"_s}, {u"model"_s, u"One"_s}});
    writer->saveImage(picture(), {}, u"/known.dng"_s, known, {});
    writer->saveImage(picture(), {}, u"/unknown.jpg"_s, imageMap(), {});
    EXPECT_EQ(missing.size(), 0);
    writer->saveImage(picture(), {}, u"/unknown.DNG"_s, imageMap(), {});
    EXPECT_EQ(missing.size(), 1);
}

} // namespace
