#include "presets/TFilterGenerator.h"

#include <QFile>
#include <QMap>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

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

/// What the card asks about: filters of a category together, a subject once, both sides of one as three.
QStringList collapsed(const QStringList &filters) {
    QStringList categories;
    QMap<QString, QStringList> subjects;
    for (const QString &filter : filters) {
        const QString category = filter.section(u'-', 0, 0);
        if (!subjects.contains(category))
            categories.append(category);
        if (const QString subject = filter.section(u'-', 1); !subjects[category].contains(subject))
            subjects[category].append(subject);
    }
    QStringList result;
    for (const QString &category : categories) {
        QStringList group = subjects.value(category);
        if (group.contains(u"Subject"_s) && group.contains(u"Background"_s))
            group = {u"Subject"_s, u"Background"_s, u"All"_s};
        for (const QString &subject : group)
            result.append(category + u'-' + subject);
    }
    return result;
}

// Walks every stack of up to four filters: from none, from what Autopilot puts on, and from what a person
// chose subjects for, each followed by whatever can be added by hand or is suggested.
TEST_F(Recommender, TheInstalledTableIsNeverAtALoss) {
    m_generator.load(QStringLiteral(ORVANE_FILTER_DATA "/likely_f_sel_combs.json"));
    EXPECT_EQ(m_generator.suggestNextFilter({}), u"Denoise-All"_s);
    const QStringList selective = {u"Exposure Adjust"_s, u"White Balance Adjust"_s, u"Denoise"_s,
                                   u"Sharpen"_s};
    const QStringList whole = {u"Face Recovery-"_s, u"Text Recovery-"_s, u"Inpaint-"_s};
    const QStringList sharpenSubjects = {u"All"_s, u"Subject"_s,  u"Background"_s, u"Landscape"_s,
                                         u"Sky"_s, u"Portrait"_s, u"none"_s};
    // A picture that is large, without faces, from a camera's raw file.
    const QStringList notToBeHad = {u"Enhance-"_s, u"Face Recovery-"_s, u"Denoise-All"_s};
    QSet<QString> seen;
    QStringList silent;
    const std::function<void(const QStringList &, const QString &, int)> walk =
        [&](const QStringList &filters, const QString &sharpen, int more) {
            const QStringList asked = collapsed(filters);
            const QString key = asked.join(u',');
            if (!asked.isEmpty() && !seen.contains(key)) {
                seen.insert(key);
                if (m_generator.suggestNextFilter(asked, notToBeHad).isEmpty())
                    silent.append(key);
            }
            if (more == 0)
                return;
            for (const QString &category : selective)
                walk(filters + QStringList(category + (category == u"Sharpen"_s ? sharpen : u"-All"_s)),
                     sharpen, more - 1);
            for (const QString &filter : whole)
                walk(filters + QStringList(filter), sharpen, more - 1);
        };
    // Bit by bit, what Autopilot put on: a filter of its own has no subject.
    for (int own = 0; own < 16; ++own) {
        QStringList filters;
        for (int i = 0; i < 4; ++i) {
            if (own & (1 << i))
                filters.append(selective.at(i) + u'-');
        }
        for (const QString &subject : sharpenSubjects)
            walk(filters, u'-' + subject, 4 - int(filters.size()));
    }
    QStringList chosen = whole;
    for (const QString &category : selective) {
        for (const QString &subject :
             {u"All"_s, u"Subject"_s, u"Background"_s, u"Landscape"_s, u"Sky"_s, u"none"_s, QString()})
            chosen.append(category + u'-' + subject);
    }
    for (const QString &first : std::as_const(chosen)) {
        for (const QString &second : std::as_const(chosen))
            walk({first, second}, {}, 0);
    }
    EXPECT_EQ(silent.mid(0, 20), QStringList());
    EXPECT_GT(seen.size(), 5000);
}

} // namespace
