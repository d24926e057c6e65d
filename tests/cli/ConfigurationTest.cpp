#include "FolderTest.h"

#include "cli/AutopilotConfiguration.h"
#include "cli/SettingsSummary.h"
#include "frontends/TEngineController.h"
#include "model/TControls.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

class Configuration : public FolderTest {
protected:
    QSettings m_settings{at(u"settings.ini"_s), QSettings::IniFormat};
};

constexpr char untouchedSummary[] =
    R"(Change the following settings within the preferences panel in the app
Application settings: 
  Overwrite Files: 0
  Recurse Directories: 1
  Input File Count: 3
  Output Folder: Source folder
  Output Format: Preserve
  Jpeg quality: 95
  Png compression level: 2
  Tiff compression: none
  Tiff bit depth: 16
Autopilot settings:
  Auto apply filters: true (Forced)
  Face Detection: auto
  Face Strength: 80
  Face Parts: hair,necks
  Sharpen Model: Auto
  Sharpen Levels: medium,high
  Sharpen Strength: 3
  Upscaling Model: Auto
  Auto Upscaling Type: auto
  Auto Upscaling Factor: 2
  Upscaling Denoise Strength: 3
  Upscaling Deblur Strength: 3
  Resolution Unit: 1
  Resolution: -1
  Denoise (non-RAW) Model: Auto
  Denoise (non-RAW) Levels: medium,high
  Denoise (non-RAW) Strength: 3
  Denoise (RAW) Model: Auto
  Denoise (RAW) Levels: medium,high
  Denoise (RAW) Strength: 3
  Denoise vs Sharpen: auto
  Adjust Lighting Strength: 25
  Adjust Lighting RAW Strength: 8
  Balance Color Temperature: 50
  Balance Color Opacity: 100
  Default Subject Type: Subject
)";

} // namespace

TEST_F(Configuration, SummaryOfAFirstRun) {
    BatchOptions options;
    options.recursive = true;
    EXPECT_EQ(settingsSummary(m_settings, options, 3).toStdString(), untouchedSummary);
}

TEST_F(Configuration, SummaryShowsOnlyTheChosenFormatsOptions) {
    BatchOptions options;
    options.outputFolder = u"/out"_s;
    const auto tail = [&](OutputFormat format) {
        options.outputFormat = format;
        const QString text = settingsSummary(m_settings, options, 1);
        const qsizetype from = text.indexOf(u"  Output Folder"_s);
        return text.mid(from, text.indexOf(u"Autopilot settings:"_s) - from).toStdString();
    };
    const std::string folder = "  Output Folder: /out\n  Output Format: ";
    EXPECT_EQ(tail(OutputFormat::Jpeg), folder + "JPEG\n  Jpeg quality: 95\n");
    EXPECT_EQ(tail(OutputFormat::Png), folder + "PNG\n  Png compression level: 2\n");
    EXPECT_EQ(tail(OutputFormat::Tiff), folder + "TIFF\n  Tiff compression: none\n  Tiff bit depth: 16\n");
    EXPECT_EQ(tail(OutputFormat::Dng), folder + "DNG\n");
}

TEST_F(Configuration, TheEngineGetsWhatIsStored) {
    TEngineController engine;
    TControls controls;
    engine.setRecommendFilters(false);
    configureAutopilot(m_settings, engine, controls);
    EXPECT_TRUE(engine.recommendFilters());
    EXPECT_EQ(engine.denoiseLevels(), (QStringList{u"medium"_s, u"high"_s, u"severe"_s}));
    EXPECT_EQ(engine.exposureRAWStrength(), 8);
    EXPECT_EQ(controls.defaultSubjectType(), u"Subject"_s);

    m_settings.setValue(u"autopilotDenoiseLevels"_s, QStringList{u"severe"_s});
    m_settings.setValue(u"autopilotUpscalingFactor"_s, 1.5);
    m_settings.setValue(u"autopilotOpacityValue"_s, u"40"_s);
    m_settings.setValue(u"autopilotSubjectType"_s, u"Sky"_s);
    m_settings.setValue(u"autopilotNonRAWExposureStrength"_s, 99);
    configureAutopilot(m_settings, engine, controls);
    EXPECT_EQ(engine.denoiseLevels(), QStringList{u"severe"_s});
    EXPECT_FLOAT_EQ(engine.upscalingFactor(), 1.5F);
    EXPECT_EQ(engine.opacityValue(), 40);
    EXPECT_EQ(engine.exposureStrength(), 25) << "the window's key for it is another";
    EXPECT_EQ(controls.defaultSubjectType(), u"Sky"_s);
    const QString summary = settingsSummary(m_settings, {}, 1);
    for (const char *line : {"  Denoise (non-RAW) Levels: severe\n", "  Auto Upscaling Factor: 1.5\n",
                             "  Balance Color Opacity: 40\n", "  Default Subject Type: Sky\n"})
        EXPECT_TRUE(summary.contains(QString::fromUtf8(line))) << line;
}
