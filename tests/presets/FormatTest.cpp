#include "presets/TFormat.h"

#include <QLocale>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

struct Format : testing::Test {
    Format() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    TFormat m_format;
};

TEST_F(Format, MemoryInDecimalUnits) {
    const std::vector<std::tuple<float, int, QString>> rows = {
        {0.F, 3, u"0B"_s},        {999.6F, 1, u"1,000B"_s},      {-5.F, 1, u"-5B"_s},
        {1000.F, 1, u"1.0KB"_s},  {999999.F, 1, u"1,000.0KB"_s}, {1500000.F, 1, u"1.5MB"_s},
        {2.5e9F, 2, u"2.50GB"_s}, {1e15F, 0, u"1,000,000GB"_s},
    };
    for (const auto &[bytes, decimals, text] : rows)
        EXPECT_EQ(m_format.formatMemoryString(bytes, decimals), text);
}

TEST_F(Format, ListsAndNumbers) {
    const std::pair<QString, QString> rows[] = {
        {m_format.list({}), {}},
        {m_format.list({u"a"_s}), u"a"_s},
        {m_format.list({u"a"_s, u"b"_s}), u"a or b"_s},
        {m_format.list({u"a"_s, u"b"_s, u"c"_s}, u"and "_s), u"a, b, and c"_s},
        {m_format.format(1e6, 0, 1e7), u"1,000,000"_s},
        {m_format.format(0.5, 0, 1), u"0.5"_s},
        {m_format.format(1e-9, 0, 1), u"0"_s},
    };
    for (const auto &[text, expected] : rows)
        EXPECT_EQ(text, expected);
}
