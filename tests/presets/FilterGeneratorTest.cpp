#include "presets/TFilterGenerator.h"

#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Recommender : public testing::Test {
protected:
    void load(const QByteArray &json) {
        QFile file(m_dir.filePath(u"table.json"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(json);
        file.close();
        m_generator.load(file.fileName());
    }
    QMap<QString, int> draw(const QStringList &applied, const QStringList &excluded = {}) {
        QMap<QString, int> counts;
        for (int i = 0; i < 2000; ++i)
            ++counts[m_generator.suggestNextFilter(applied, excluded)];
        return counts;
    }

    QTemporaryDir m_dir;
    TFilterGenerator m_generator;
};

const QByteArray Table = R"([
 {"filters_combined": "['DENOISE-All', 'TEXT-']", "count": 10},
 {"filters_combined": "['DENOISE-All', 'SHARPEN-Subject']", "count": 100},
 {"filters_combined": "['DENOISE-All', 'UPSCALE-']", "count": 50},
 {"filters_combined": "['DENOISE-All', 'FACE-']", "count": 25},
 {"filters_combined": "['SHARPEN-All']", "count": 1000},
 {"filters_combined": "['DENOISE-All', 'SHARPEN-Subject', 'CROP-All']", "count": 7},
 {"filters_combined": "['FACE-', 'FACE-']", "count": 3},
 {"count": 5}, 17, null
])";

TEST_F(Recommender, DrawsAmongTheThreeMostFrequent) {
    load(Table);
    struct Row {
        const char *name;
        QStringList applied;
        QStringList excluded;
        QStringList possible;
    };
    const QString denoise = u"Denoise-All"_s;
    const QString sharpen = u"Sharpen-Subject"_s;
    const std::vector<Row> rows = {
        {"three of four", {denoise}, {}, {u"Enhance-"_s, u"Face Recovery-"_s, sharpen}},
        {"the first excluded",
         {denoise},
         {sharpen},
         {u"Enhance-"_s, u"Face Recovery-"_s, u"Text Recovery-"_s}},
        {"unknown names stay", {denoise, sharpen}, {}, {u"CROP-All"_s}},
        {"another order is another key", {sharpen, denoise}, {}, {QString()}},
        {"never what is applied", {u"Face Recovery-"_s}, {}, {QString()}},
        {"all excluded", {denoise, sharpen}, {u"CROP-All"_s}, {QString()}},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(draw(row.applied, row.excluded).keys(), row.possible);
    }
    const auto counts = draw({denoise});
    EXPECT_NEAR(counts.value(sharpen) / 2000.0, 100 / 175.0, 0.05);
}

TEST_F(Recommender, FirstFilterIsTheMostUsedOne) {
    EXPECT_EQ(m_generator.suggestNextFilter({}), QString());
    load(Table);
    EXPECT_EQ(m_generator.suggestNextFilter({}), u"Sharpen-Subject"_s);
    EXPECT_EQ(m_generator.suggestNextFilter({}, {u"Sharpen-Subject"_s}), u"Enhance-"_s);
}

TEST_F(Recommender, BrokenOrMissingTablesSuggestNothing) {
    m_generator.load(m_dir.filePath(u"missing.json"_s));
    for (const char *json : {"", "{}", "[", "[[]]", R"([{"filters_combined": "],],'", "count": "x"}])"})
        load(json);
    EXPECT_EQ(m_generator.suggestNextFilter({u"Denoise-All"_s}), QString());
}

TEST_F(Recommender, InstalledTableKnowsTheUsualFirstSteps) {
    m_generator.load(QStringLiteral(ORVANE_FILTER_DATA "/likely_f_sel_combs.json"));
    EXPECT_FALSE(m_generator.suggestNextFilter({}).isEmpty());
    for (const QString &first : {u"Denoise-All"_s, u"Sharpen-Subject"_s, u"Exposure Adjust-All"_s})
        EXPECT_FALSE(m_generator.suggestNextFilter({first}).isEmpty()) << first.toStdString();
}

} // namespace
