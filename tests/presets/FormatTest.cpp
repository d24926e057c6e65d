#include "presets/TFormat.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Format, MemoryInDecimalUnits) {
    const std::vector<std::tuple<float, int, QString>> rows = {
        {0.F, 3, u"0B"_s},        {999.6F, 1, u"1,000B"_s},      {-5.F, 1, u"-5B"_s},
        {1000.F, 1, u"1.0KB"_s},  {999999.F, 1, u"1,000.0KB"_s}, {1500000.F, 1, u"1.5MB"_s},
        {2.5e9F, 2, u"2.50GB"_s}, {1e15F, 0, u"1,000,000GB"_s},
    };
    for (const auto &[bytes, decimals, text] : rows)
        EXPECT_EQ(TFormat().formatMemoryString(bytes, decimals), text);
}

TEST(Format, ListsJoinAsSentences) {
    const QStringList three = {u"a"_s, u"b"_s, u"c"_s};
    EXPECT_EQ(TFormat().list({}), QString());
    EXPECT_EQ(TFormat().list({u"a"_s}), u"a"_s);
    EXPECT_EQ(TFormat().list({u"a"_s, u"b"_s}), u"a or b"_s);
    EXPECT_EQ(TFormat().list(three, u"and "_s), u"a, b, and c"_s);
}

TEST(Format, NumbersLoseTheirExponent) {
    EXPECT_EQ(TFormat().format(1e6, 0, 1e7), u"1,000,000"_s);
    EXPECT_EQ(TFormat().format(0.5, 0, 1), u"0.5"_s);
    EXPECT_EQ(TFormat().format(1e-9, 0, 1), u"0"_s);
}
