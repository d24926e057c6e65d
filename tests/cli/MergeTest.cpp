#include "Capture.h"

#include "cli/SettingsMerge.h"
#include "model/TControls.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::string_literals;

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
    const struct {
        const char *category, *text, *said;
    } rows[] = {
        {"Denoise", "force=0.9",
         "Denoise: \"force\" is no setting of the model Heavy; it has: strength, enabled, model"},
        {"Denoise", "strength=50", "Denoise: \"strength\" goes from 0.01 to 1; 50 is taken as 1"},
        {"Denoise", "strength=0", ""},
        {"Denoise", "strength=much", "Denoise: \"strength\" takes a number, not \"much\"; 0.75 is used"},
        {"Denoise", "enabled=no", "Denoise: \"enabled\" is true or false, not \"no\""},
        {"Denoise", "model=Mild", "Denoise has no model \"Mild\"; there are: Fine, Heavy"},
        {"Enhance", "lens=maybe", "Enhance: \"lens\" is true or false, not \"maybe\""},
        {"Enhance", "mode=widht", "Enhance: \"mode\" can't be \"widht\"; there are: scale, width, height"},
        {"Enhance", "width=400", "Enhance: \"width\" has no effect where mode is scale"},
        {"Enhance", "scale=big", "Enhance: \"scale\" takes a number above 0, not \"big\""},
        {"Face Recovery", "", "Face Recovery has no installed model and does nothing"},
    };
    for (const auto &[category, text, said] : rows) {
        const Capture capture;
        m_options.overrides.clear();
        override(QString::fromLatin1(category), QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts));
        apply(advice);
        EXPECT_EQ(capture.err(), *said ? said + "\n"s : "");
        EXPECT_EQ(Capture::log().contains(u"info [CLI] "_s + QString::fromUtf8(said)), *said != 0) << said;
    }
}

/// What Autopilot put on, then the preset's filters, and what was said on the command line over both.
TEST_F(Merge, APresetOnTop) {
    const auto filter = [](const QString &category, const QVariantMap &params) {
        return QVariantMap{{u"category"_s, category}, {u"enabled"_s, true}, {u"params"_s, params}};
    };
    m_options.preset = {{{u"Enhance"_s, filter(u"Enhance"_s, {{u"mode"_s, u"width"_s}, {u"width"_s, 900}})},
                         {u"Denoise"_s, filter(u"Denoise"_s, {{u"strength"_s, 0.9}})}},
                        {u"Enhance"_s, u"Denoise"_s}};
    override(u"RAW"_s, {});
    override(u"Denoise"_s, {u"strength=0.3"_s});
    QVariantMap noUpscale = advice;
    noUpscale.remove(u"Enhance"_s);
    apply(noUpscale);
    EXPECT_EQ(m_controls.filterOrder(), (QStringList{u"RAW"_s, u"Denoise"_s, u"Denoise2"_s, u"Enhance"_s}));
    EXPECT_EQ(param(u"Denoise"_s, u"strength"_s), u"0.3"_s);
    EXPECT_EQ(param(u"Denoise2"_s, u"strength"_s), u"0.3"_s);
    EXPECT_EQ(param(u"Enhance"_s, u"width"_s), 900);
    EXPECT_EQ(m_capture.err(), "");
}

TEST_F(Merge, APresetAlone) {
    const QVariantMap denoise = {{u"category"_s, u"Denoise"_s}, {u"model"_s, u"Fine"_s}};
    const QVariantMap enhance = {{u"category"_s, u"Enhance"_s}};
    m_options.preset = {{{u"Denoise"_s, denoise}, {u"Enhance"_s, enhance}}, {u"Denoise"_s}};
    m_options.overrideAutopilot = true;
    apply(advice);
    EXPECT_EQ(m_controls.filterOrder(), QStringList{u"Denoise"_s});
    EXPECT_EQ(filter(u"Denoise"_s).value(u"model"_s), u"Fine"_s);
    EXPECT_TRUE(filter(u"Enhance"_s).isEmpty());
}

/// The size that was asked for isn't contradicted by what Autopilot worked out for another.
TEST_F(Merge, SizeThatWasAskedFor) {
    override(u"Enhance"_s, {u"width=400"_s, u"mode=width"_s});
    const QVariantMap size = {
        {u"mode"_s, u"scale"_s}, {u"scale"_s, 4}, {u"height"_s, 640}, {u"enabled"_s, true}};
    apply({{u"Enhance"_s, size}});
    const QVariantMap params = filter(u"Enhance"_s).value(u"params"_s).toMap();
    EXPECT_EQ(params.value(u"width"_s), u"400"_s);
    EXPECT_FALSE(params.contains(u"scale"_s));
    EXPECT_EQ(m_capture.err(), "");
}
