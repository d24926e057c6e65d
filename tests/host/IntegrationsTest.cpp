#include "host/InputGathering.h"
#include "host/TIntegrations.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Integrations : public testing::Test {
protected:
    QString make(const QString &name) {
        const QString path = m_dir.filePath(name);
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return path;
    }

    QTemporaryDir m_dir;
};

TEST_F(Integrations, WordsBecomeImagesAndInvalidOnes) {
    const QString jpg = make(u"a photo.JPG"_s);
    const QString text = make(u"notes.txt"_s);
    const QString dashed = make(u"-dash.png"_s);
    const QString deep = make(u"folder/b/deep.tif"_s);
    const QString top = make(u"folder/z.webp"_s);
    make(u"folder/readme.md"_s);
    QDir().mkpath(m_dir.filePath(u"empty"_s));
    QDir::setCurrent(m_dir.path());

    struct Row {
        const char *name;
        QStringList words;
        QStringList images;
        qsizetype invalid;
    };
    const std::vector<Row> rows = {
        {"nothing", {}, {}, 0},
        {"one file, twice", {jpg, jpg}, {jpg}, 0},
        {"relative", {u"a photo.JPG"_s}, {jpg}, 0},
        {"options are passed over", {u"--recover"_s, jpg}, {jpg}, 0},
        {"a file that looks like an option", {u"-dash.png"_s}, {dashed}, 0},
        {"unsupported", {text, jpg}, {jpg}, 1},
        {"missing", {u"/no/such.jpg"_s}, {}, 1},
        {"folder, whole, in order", {m_dir.filePath(u"folder"_s)}, {deep, top}, 0},
        {"folder without a picture", {m_dir.filePath(u"empty"_s)}, {}, 1},
        {"empty word of a recovered list", {QString()}, {}, 0},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        const GatheredInput input = gatherInput(row.words);
        EXPECT_EQ(input.images, row.images);
        EXPECT_EQ(input.invalid.size(), row.invalid);
    }
}

TEST_F(Integrations, ImagesArriveOnceTheWindowIsThere) {
    const QString first = make(u"first.jpg"_s);
    const QString second = make(u"second.png"_s);
    TIntegrations server({u"orvane-studio"_s, first});
    const TIntegrations other({u"orvane-studio"_s, second, m_dir.filePath(u"gone.jpg"_s)});
    QSignalSpy added(&server, &TIntegrations::pluginImagesAdded);
    QSignalSpy invalid(&server, &TIntegrations::invalidImages);

    server.mergeInstance(other.getDataForMerging());
    EXPECT_EQ(added.size(), 0) << "a merge during start-up waits for the window";
    server.start();
    server.start();
    ASSERT_EQ(added.size(), 2);
    EXPECT_EQ(added[0], (QVariantList{QStringList{first}, false}));
    EXPECT_EQ(added[1], (QVariantList{QStringList{second}, true}));
    EXPECT_EQ(invalid.size(), 1);

    for (const QString &data : {u""_s, u"{}"_s, u"[1, null, {}]"_s, u"\u0000"_s})
        server.mergeInstance(data);
    EXPECT_EQ(added.size(), 2);
}

// A folder is walked elsewhere, and yet nothing overtakes it.
TEST_F(Integrations, BatchesKeepTheirOrder) {
    const QString deep = make(u"folder/b/deep.tif"_s);
    const QString after = make(u"after.jpg"_s);
    TIntegrations server({u"orvane-studio"_s, m_dir.filePath(u"folder"_s)});
    const TIntegrations other({u"orvane-studio"_s, after});
    QSignalSpy added(&server, &TIntegrations::pluginImagesAdded);
    server.start();
    server.mergeInstance(other.getDataForMerging());
    EXPECT_EQ(added.size(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&added] { return added.size() == 2; }, 60000));
    EXPECT_EQ(added.value(0), (QVariantList{QStringList{deep}, false}));
    EXPECT_EQ(added.value(1), (QVariantList{QStringList{after}, true}));
    server.mergeInstance(other.getDataForMerging());
    EXPECT_EQ(added.size(), 3) << "files alone are taken at once";
}

} // namespace
