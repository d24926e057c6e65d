#include "cli/BatchOutcome.h"
#include "cli/ProgressText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Columns, OfWideAndCombiningCharacters) {
    for (const auto &[text, columns] :
         {std::pair(u"plain ü"_s, 7), std::pair(u"e\u0301"_s, 1), std::pair(u"写真"_s, 4),
          std::pair(u"한글"_s, 4), std::pair(u"\U0001F600"_s, 2)})
        EXPECT_EQ(columnsOf(text), columns);
}

TEST(ProgressText, WhatFits) {
    const BatchProgress full{3, 10, u"/pictures/a holiday by the sea.jpg"_s, u"Denoise"_s, 0.425, 83};
    BatchProgress reading{1, 2, u"/x/写真\nつ\u001B[31mづき.png"_s, u"Reading"_s, -1, std::nullopt};
    struct {
        const BatchProgress &progress;
        int columns;
        QString text;
    } const rows[] = {
        {full, 79, u"3/10 a holiday by the sea.jpg  Denoise 42 %  1:23 left"_s},
        {full, 44, u"3/10 a holid…ea.jpg  Denoise 42 %  1:23 left"_s},
        {full, 24, u"3/10 a holid…ea.jpg 42 %"_s},
        {full, 10, u"3/10 ….jpg"_s},
        {reading, 60, u"1/2 写真?つ?[31mづき.png  Reading"_s},
        {reading, 26, u"1/2 写真?…き.png  Reading"_s},
    };
    for (const auto &row : rows) {
        const QString text = progressText(row.progress, row.columns);
        EXPECT_LE(columnsOf(text), row.columns) << text.toStdString();
        EXPECT_EQ(text.toStdString(), row.text.toStdString());
    }
    for (int columns = 0; columns < 60; ++columns) {
        EXPECT_LE(columnsOf(progressText(full, columns)), columns);
        EXPECT_LE(columnsOf(progressText(reading, columns)), columns);
    }
}

TEST(Outcome, FirstOneOfAFileStands) {
    BatchOutcome outcome;
    EXPECT_EQ(outcome.report(), QString());
    outcome.succeeded(u"a"_s);
    outcome.failed(u"a"_s, u"late"_s);
    outcome.failed(u"b\n\u001B[0m"_s, u"torn"_s);
    outcome.failed(u"b\n\u001B[0m"_s, u"twice"_s);
    EXPECT_EQ(outcome.failures(), 1);
    EXPECT_EQ(outcome.report().toStdString(), "1 of 2 files failed:\n    b\\n\\x1b[0m: torn\n");
}
