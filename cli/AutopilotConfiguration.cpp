#include "cli/AutopilotConfiguration.h"

#include "frontends/PreferenceTable.h"
#include "frontends/TEngineController.h"
#include "model/TControls.h"

#include <QSettings>

using namespace Qt::StringLiterals;

const QList<AutopilotSetting> &autopilotSettings() {
    static const QList<AutopilotSetting> all = {
        {preference(u"autopilotFaceDetect"), u"Face Detection"_s},
        {preference(u"autopilotFaceStrength"), u"Face Strength"_s},
        {preference(u"faceParts"), u"Face Parts"_s},
        {preference(u"autopilotSharpeningModel"), u"Sharpen Model"_s},
        {preference(u"autopilotSharpenBlurs"), u"Sharpen Levels"_s},
        {preference(u"autopilotSharpenStrength"), u"Sharpen Strength"_s},
        {preference(u"autopilotUpscalingModel"), u"Upscaling Model"_s},
        {preference(u"autopilotUpscalingType"), u"Auto Upscaling Type"_s},
        {preference(u"autopilotUpscalingFactor"), u"Auto Upscaling Factor"_s},
        {preference(u"autopilotUpscalingParam1Strength"), u"Upscaling Denoise Strength"_s},
        {preference(u"autopilotUpscalingParam2Strength"), u"Upscaling Deblur Strength"_s},
        {preference(u"autopilotResolutionUnit"), u"Resolution Unit"_s},
        {preference(u"autopilotDefaultResolution"), u"Resolution"_s},
        {preference(u"autopilotDenoisingModel"), u"Denoise (non-RAW) Model"_s},
        {preference(u"autopilotDenoiseLevels"), u"Denoise (non-RAW) Levels"_s},
        {preference(u"autopilotDenoiseStrength"), u"Denoise (non-RAW) Strength"_s},
        {preference(u"autopilotDenoisingRawModel"), u"Denoise (RAW) Model"_s},
        {preference(u"autopilotDenoiseRawLevels"), u"Denoise (RAW) Levels"_s},
        {preference(u"autopilotDenoiseRawStrength"), u"Denoise (RAW) Strength"_s},
        {preference(u"autopilotConflictResolutionPref"), u"Denoise vs Sharpen"_s},
        {preference(u"autopilotNonRAWExposureStrength"), u"Adjust Lighting Strength"_s},
        {preference(u"autopilotRAWExposureStrength"), u"Adjust Lighting RAW Strength"_s},
        {preference(u"autopilotTemperatureValue"), u"Balance Color Temperature"_s},
        {preference(u"autopilotOpacityValue"), u"Balance Color Opacity"_s},
    };
    return all;
}

QVariant readSetting(const QSettings &settings, const Preference &preference, const QVariant &fallback) {
    if (!settings.contains(preference.consoleKey))
        return fallback;
    const QVariant value = validPreference(preference, settings.value(preference.consoleKey));
    return value.isValid() ? value : fallback;
}

QString defaultSubjectType(const QSettings &settings) {
    return storedPreference(settings, u"autopilotSubjectType").toString();
}

void configureAutopilot(const QSettings &settings, TEngineController &engine, TControls &controls) {
    for (const auto &[preference, label] : autopilotSettings())
        engine.setProperty(preference.engineProperty.toLatin1(),
                           readSetting(settings, preference, preference.consoleInitial));
    engine.setRecommendFilters(true);
    engine.setEnableDownscaling(true);
    engine.setResizingSupported(true);
    controls.setDefaultSubjectType(defaultSubjectType(settings));
}
