#include "Capture.h"

#include "cli/SettingsMerge.h"
#include "model/TControls.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QVariantMap modelWith(const QString &parameter, const QVariant &fallback) {
    const QVariantMap range{{u"default"_s, fallback}, {u"min"_s, 0.01}, {u"max"_s, 1}};
    return {{u"gui"_s, QVariantMap{{u"parameters"_s, QVariantMap{{parameter, range}}}}}};
}

class Merge : public testing::Test {
protected:
    Merge() {
        m_controls.setModelParamInfo(
            {{u"Denoise"_s, QVariantMap{{u"Fine"_s, modelWith(u"strength"_s, 0.25)},
                                        {u"Heavy"_s, modelWith(u"strength"_s, 0.75)}}},
             {u"Enhance"_s, QVariantMap{{u"Plain"_s, modelWith(u"lens"_s, false)}}},
             {u"RAW"_s, QVariantMap{{u"Native"_s, QVariantMap()}}}});
        m_controls.loadImages({u"/a.jpg"_s});
    }
    void apply(const QVariantMap &autopilot) {
        m_controls.setAutopilotSettings(autopilot);
        SettingsMerge(m_controls, m_options, m_order, m_categories).apply(autopilot);
    }
    void override(const QString &category, const QStringList &texts) {
        for (const QString &text : texts)
            m_options.overrides.insert(category, text);
        m_options.overrides.insert(category, u"enabled=true"_s);
    }
    QVariantMap filter(const QString &name) const { return m_controls.currentControls().value(name).toMap(); }
    QVariant param(const QString &name, const QString &key) const {
        return filter(name).value(u"params"_s).toMap().value(key);
    }

    TControls m_controls;
    BatchOptions m_options;
    QStringList m_order = Categories::processingOrder();
    QMap<QString, QString> m_categories = categoryStems();
    Capture m_capture;
};

const QVariantMap advice = {
    {u"Denoise"_s, QVariantMap{{u"enabled"_s, true}, {u"model"_s, u"Heavy"_s}, {u"strength"_s, 0.5}}},
    {u"Enhance"_s, QVariantMap{{u"enabled"_s, true}, {u"scale"_s, 2}}},
    {u"RAW"_s, QVariantMap{{u"enabled"_s, false}}},
    {u"Sharpen"_s, QVariantMap{}}};

} // namespace

TEST_F(Merge, AutopilotAlone) {
    apply(advice);
    EXPECT_EQ(m_controls.filterOrder(), (QStringList{u"Denoise"_s, u"Enhance"_s}));
    EXPECT_EQ(filter(u"Denoise"_s).value(u"model"_s), u"Heavy"_s);
    EXPECT_EQ(param(u"Denoise"_s, u"strength"_s), 0.5);
    EXPECT_TRUE(filter(u"Enhance"_s).value(u"enabled"_s).toBool());
    EXPECT_EQ(m_capture.out(), "");
}

TEST_F(Merge, OverridesOnTop) {
    override(u"Denoise"_s, {u"strength=0.9"_s, u"strength=0.1"_s, u"model=Fine"_s});
    override(u"Enhance"_s, {u"enabled=false"_s});
    apply(advice);
    EXPECT_EQ(filter(u"Denoise"_s).value(u"model"_s), u"Fine"_s);
    EXPECT_EQ(param(u"Denoise"_s, u"strength"_s), u"0.9"_s) << "the setting written first wins, as text";
    EXPECT_FALSE(filter(u"Enhance"_s).value(u"enabled"_s).toBool());
    EXPECT_EQ(param(u"Enhance"_s, u"scale"_s), 2) << "what the user did not name stays";
    EXPECT_EQ(m_controls.filterOrder(), (QStringList{u"Denoise"_s, u"Enhance"_s}));
    EXPECT_EQ(m_capture.out(), "Overwriting Denoise enabled to true\n"
                               "Overwriting Denoise model to Fine\n"
                               "Overwriting Denoise strength to 0.1\n"
                               "Overwriting Denoise strength to 0.9\n"
                               "Overwriting Enhance enabled to true\n"
                               "Overwriting Enhance enabled to false\n");
    EXPECT_EQ(m_capture.err(), "");
    EXPECT_TRUE(Capture::logged("info [CLI] Set \"Denoise\" \"model\" = \"Fine\""));
}

TEST_F(Merge, ACategoryThatAutopilotLeftOut) {
    override(u"RAW"_s, {u"=odd="_s, u"empty="_s});
    m_options.overrideAutopilot = true;
    apply({});
    EXPECT_EQ(m_controls.filterOrder(), QStringList{u"RAW"_s});
    EXPECT_TRUE(filter(u"RAW"_s).value(u"enabled"_s).toBool());
    EXPECT_EQ(m_capture.out(), "Overwriting Autopilot values\n"
                               "Overwriting RAW enabled to true\n"
                               "Overwriting RAW empty to \n"
                               "Overwriting RAW odd to \n");
}

/// What can't be had is said, with what there is; the run goes on.
TEST_F(Merge, NothingIsSwallowed) {
    struct Row {
        QString category;
        QStringList texts;
        const char *said;
    };
    const Row rows[] = {
        {u"Denoise"_s,
         {u"force=0.9"_s},
         "Denoise: \"force\" is no setting of the model Heavy; it has: strength, enabled, model\n"},
        {u"Denoise"_s, {u"strength=50"_s}, "Denoise: \"strength\" goes from 0.01 to 1; 50 is taken as 1\n"},
        {u"Denoise"_s, {u"strength=0"_s}, ""},
        {u"Denoise"_s,
         {u"strength=much"_s},
         "Denoise: \"strength\" takes a number, not \"much\"; 0.75 is used\n"},
        {u"Denoise"_s, {u"enabled=no"_s}, "Denoise: \"enabled\" is true or false, not \"no\"\n"},
        {u"Denoise"_s, {u"model=Mild"_s}, "Denoise has no model \"Mild\"; there are: Fine, Heavy\n"},
        {u"Enhance"_s, {u"lens=maybe"_s}, "Enhance: \"lens\" is true or false, not \"maybe\"\n"},
        {u"Enhance"_s,
         {u"mode=widht"_s},
         "Enhance: \"mode\" can't be \"widht\"; there are: scale, width, height\n"},
        {u"Enhance"_s, {u"width=400"_s}, "Enhance: \"width\" has no effect where mode is scale\n"},
        {u"Enhance"_s, {u"scale=big"_s}, "Enhance: \"scale\" takes a number above 0, not \"big\"\n"},
        {u"Face Recovery"_s, {}, "Face Recovery has no installed model and does nothing\n"},
    };
    for (const Row &row : rows) {
        const Capture capture;
        m_options.overrides.clear();
        override(row.category, row.texts);
        apply(advice);
        EXPECT_EQ(capture.err(), row.said);
        const QString logged = u"info [CLI] "_s + QString::fromUtf8(row.said).trimmed();
        EXPECT_EQ(Capture::log().contains(logged), *row.said != 0) << row.said;
    }
}

/// The size that was asked for isn't contradicted by what Autopilot worked out for another.
TEST_F(Merge, SizeThatWasAskedFor) {
    override(u"Enhance"_s, {u"width=400"_s, u"mode=width"_s});
    apply(
        {{u"Enhance"_s,
          QVariantMap{{u"enabled"_s, true}, {u"mode"_s, u"scale"_s}, {u"scale"_s, 4}, {u"height"_s, 640}}}});
    const QVariantMap params = filter(u"Enhance"_s).value(u"params"_s).toMap();
    EXPECT_EQ(params.value(u"width"_s), u"400"_s);
    EXPECT_FALSE(params.contains(u"scale"_s));
    EXPECT_EQ(m_capture.err(), "");
}
