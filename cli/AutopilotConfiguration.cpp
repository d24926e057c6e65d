#include "cli/AutopilotConfiguration.h"

#include "frontends/TEngineController.h"
#include "model/TControls.h"

#include <QSettings>

using namespace Qt::StringLiterals;

const QList<AutopilotSetting> &autopilotSettings() {
    using E = TEngineController;
    using V = QVariant;
    const QStringList strongNoise = {u"medium"_s, u"high"_s, u"severe"_s};
    // The summary has always shown two levels of noise where three are used.
    const QStringList shownNoise = {u"medium"_s, u"high"_s};
    static const QList<AutopilotSetting> all = {
        {u"autopilotFaceDetect"_s, u"auto"_s, [](E &e, const V &v) { e.setFaceDetection(v.toString()); },
         u"Face Detection"_s},
        {u"autopilotFaceStrength"_s, 80, [](E &e, const V &v) { e.setFaceStrength(v.toInt()); },
         u"Face Strength"_s},
        {u"faceParts"_s, QStringList{u"hair"_s, u"necks"_s},
         [](E &e, const V &v) { e.setFaceParts(v.toStringList()); }, u"Face Parts"_s},
        {u"autopilotSharpeningModel"_s, u"Auto"_s,
         [](E &e, const V &v) { e.setSharpeningModel(v.toString()); }, u"Sharpen Model"_s},
        {u"autopilotSharpenBlurs"_s, QStringList{u"medium"_s, u"high"_s},
         [](E &e, const V &v) { e.setSharpenBlurs(v.toStringList()); }, u"Sharpen Levels"_s},
        {u"autopilotSharpenStrength"_s, 3, [](E &e, const V &v) { e.setSharpenStrength(v.toInt()); },
         u"Sharpen Strength"_s},
        {u"autopilotUpscalingModel"_s, u"Auto"_s, [](E &e, const V &v) { e.setUpscalingModel(v.toString()); },
         u"Upscaling Model"_s},
        {u"autopilotUpscalingType"_s, u"auto"_s, [](E &e, const V &v) { e.setUpscalingType(v.toString()); },
         u"Auto Upscaling Type"_s},
        {u"autopilotUpscalingFactor"_s, 2.0F, [](E &e, const V &v) { e.setUpscalingFactor(v.toFloat()); },
         u"Auto Upscaling Factor"_s},
        {u"autopilotUpscalingParam1Strength"_s, 3,
         [](E &e, const V &v) { e.setUpscalingParam1Strength(v.toInt()); }, u"Upscaling Denoise Strength"_s},
        {u"autopilotUpscalingParam2Strength"_s, 3,
         [](E &e, const V &v) { e.setUpscalingParam2Strength(v.toInt()); }, u"Upscaling Deblur Strength"_s},
        {u"autopilotResolutionUnit"_s, 1, [](E &e, const V &v) { e.setResolutionUnit(v.toInt()); },
         u"Resolution Unit"_s},
        {u"autopilotDefaultResolution"_s, -1.0F, [](E &e, const V &v) { e.setResolution(v.toFloat()); },
         u"Resolution"_s},
        {u"autopilotDenoisingModel"_s, u"Auto"_s, [](E &e, const V &v) { e.setDenoisingModel(v.toString()); },
         u"Denoise (non-RAW) Model"_s},
        {u"autopilotDenoiseLevels"_s, strongNoise,
         [](E &e, const V &v) { e.setDenoiseLevels(v.toStringList()); }, u"Denoise (non-RAW) Levels"_s,
         shownNoise},
        {u"autopilotDenoiseStrength"_s, 3, [](E &e, const V &v) { e.setDenoiseStrength(v.toInt()); },
         u"Denoise (non-RAW) Strength"_s},
        {u"autopilotDenoisingRawModel"_s, u"Auto"_s,
         [](E &e, const V &v) { e.setDenoisingRawModel(v.toString()); }, u"Denoise (RAW) Model"_s},
        {u"autopilotDenoiseRawLevels"_s, strongNoise,
         [](E &e, const V &v) { e.setDenoiseRawLevels(v.toStringList()); }, u"Denoise (RAW) Levels"_s,
         shownNoise},
        {u"autopilotDenoiseRawStrength"_s, 3, [](E &e, const V &v) { e.setDenoiseRawStrength(v.toInt()); },
         u"Denoise (RAW) Strength"_s},
        {u"autopilotConflictResolutionPref"_s, u"auto"_s,
         [](E &e, const V &v) { e.setConflictResolutionPref(v.toString()); }, u"Denoise vs Sharpen"_s},
        {u"autopilotExposureStrength"_s, 25, [](E &e, const V &v) { e.setExposureStrength(v.toInt()); },
         u"Adjust Lighting Strength"_s},
        {u"autopilotExposureRAWStrength"_s, 8, [](E &e, const V &v) { e.setExposureRAWStrength(v.toInt()); },
         u"Adjust Lighting RAW Strength"_s},
        {u"autopilotTemperatureValue"_s, 50, [](E &e, const V &v) { e.setTemperatureValue(v.toInt()); },
         u"Balance Color Temperature"_s},
        {u"autopilotOpacityValue"_s, 100, [](E &e, const V &v) { e.setOpacityValue(v.toInt()); },
         u"Balance Color Opacity"_s},
    };
    return all;
}

QVariant readSetting(const QSettings &settings, const QString &key, const QVariant &fallback) {
    QVariant value = settings.value(key, fallback);
    value.convert(fallback.metaType());
    return value;
}

QString defaultSubjectType(const QSettings &settings) {
    return readSetting(settings, u"autopilotSubjectType"_s, u"Subject"_s).toString();
}

void configureAutopilot(const QSettings &settings, TEngineController &engine, TControls &controls) {
    for (const AutopilotSetting &setting : autopilotSettings())
        setting.apply(engine, readSetting(settings, setting.key, setting.fallback));
    engine.setRecommendFilters(true);
    engine.setResizingSupported(true);
    controls.setDefaultSubjectType(defaultSubjectType(settings));
}
