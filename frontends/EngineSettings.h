#pragma once

#include "contracts/Autopilot.h"

#include <QColor>
#include <QObject>

/// What the user and the program have decided about runs and analysis; read when a request is
/// made, so a later change never reaches work under way. Main thread only. Long because it is a
/// table: one property a row.
class EngineSettings : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isCli READ isCli WRITE setIsCli NOTIFY isCliChanged)
    Q_PROPERTY(bool exporting READ exporting WRITE setExporting NOTIFY exportingChanged)
    Q_PROPERTY(bool exportIsDng READ exportIsDng WRITE setExportIsDng NOTIFY exportIsDngChanged)
    Q_PROPERTY(int deviceId READ deviceId WRITE setDeviceId NOTIFY deviceIdChanged)
    Q_PROPERTY(QColor overlayColor READ overlayColor WRITE setOverlayColor NOTIFY overlayColorChanged)
    Q_PROPERTY(
        bool useNeuralEngine READ useNeuralEngine WRITE setUseNeuralEngine NOTIFY useNeuralEngineChanged)
    Q_PROPERTY(
        bool recommendFilters READ recommendFilters WRITE setRecommendFilters NOTIFY recommendFiltersChanged)
    Q_PROPERTY(bool resizingSupported READ resizingSupported WRITE setResizingSupported NOTIFY
                   resizingSupportedChanged)
    Q_PROPERTY(QString faceDetection READ faceDetection WRITE setFaceDetection NOTIFY faceDetectionChanged)
    Q_PROPERTY(QStringList faceParts READ faceParts WRITE setFaceParts NOTIFY facePartsChanged)
    Q_PROPERTY(int faceStrength READ faceStrength WRITE setFaceStrength NOTIFY faceStrengthChanged)
    Q_PROPERTY(
        QString sharpeningModel READ sharpeningModel WRITE setSharpeningModel NOTIFY sharpeningModelChanged)
    Q_PROPERTY(QStringList sharpenBlurs READ sharpenBlurs WRITE setSharpenBlurs NOTIFY sharpenBlursChanged)
    Q_PROPERTY(
        int sharpenStrength READ sharpenStrength WRITE setSharpenStrength NOTIFY sharpenStrengthChanged)
    Q_PROPERTY(
        QString upscalingModel READ upscalingModel WRITE setUpscalingModel NOTIFY upscalingModelChanged)
    Q_PROPERTY(bool enableDownscaling READ enableDownscaling WRITE setEnableDownscaling NOTIFY
                   enableDownscalingChanged)
    Q_PROPERTY(QString upscalingType READ upscalingType WRITE setUpscalingType NOTIFY upscalingTypeChanged)
    Q_PROPERTY(
        float upscalingFactor READ upscalingFactor WRITE setUpscalingFactor NOTIFY upscalingFactorChanged)
    Q_PROPERTY(int upscalingParam1Strength READ upscalingParam1Strength WRITE setUpscalingParam1Strength
                   NOTIFY upscalingParam1StrengthChanged)
    Q_PROPERTY(int upscalingParam2Strength READ upscalingParam2Strength WRITE setUpscalingParam2Strength
                   NOTIFY upscalingParam2StrengthChanged)
    Q_PROPERTY(int resolutionUnit READ resolutionUnit WRITE setResolutionUnit NOTIFY resolutionUnitChanged)
    Q_PROPERTY(float resolution READ resolution WRITE setResolution NOTIFY resolutionChanged)
    Q_PROPERTY(
        QString denoisingModel READ denoisingModel WRITE setDenoisingModel NOTIFY denoisingModelChanged)
    Q_PROPERTY(QString denoisingRawModel READ denoisingRawModel WRITE setDenoisingRawModel NOTIFY
                   denoisingRawModelChanged)
    Q_PROPERTY(
        QStringList denoiseLevels READ denoiseLevels WRITE setDenoiseLevels NOTIFY denoiseLevelsChanged)
    Q_PROPERTY(QStringList denoiseRawLevels READ denoiseRawLevels WRITE setDenoiseRawLevels NOTIFY
                   denoiseRawLevelsChanged)
    Q_PROPERTY(
        int denoiseStrength READ denoiseStrength WRITE setDenoiseStrength NOTIFY denoiseStrengthChanged)
    Q_PROPERTY(int denoiseRawStrength READ denoiseRawStrength WRITE setDenoiseRawStrength NOTIFY
                   denoiseRawStrengthChanged)
    Q_PROPERTY(QString conflictResolutionPref READ conflictResolutionPref WRITE setConflictResolutionPref
                   NOTIFY conflictResolutionPrefChanged)
    Q_PROPERTY(
        int exposureStrength READ exposureStrength WRITE setExposureStrength NOTIFY exposureStrengthChanged)
    Q_PROPERTY(int exposureRAWStrength READ exposureRAWStrength WRITE setExposureRAWStrength NOTIFY
                   exposureRAWStrengthChanged)
    Q_PROPERTY(
        int temperatureValue READ temperatureValue WRITE setTemperatureValue NOTIFY temperatureValueChanged)
    Q_PROPERTY(int opacityValue READ opacityValue WRITE setOpacityValue NOTIFY opacityValueChanged)
    Q_PROPERTY(QString textModel READ textModel WRITE setTextModel NOTIFY textModelChanged)
    Q_PROPERTY(int textStrength READ textStrength WRITE setTextStrength NOTIFY textStrengthChanged)

public:
    explicit EngineSettings(QObject *parent = nullptr)
        : QObject(parent) {}

    /// What the analysis is told.
    const Autopilot::Preferences &preferences() const { return m_preferences; }

    bool isCli() const { return m_isCli; }
    void setIsCli(bool value) { change(m_isCli, value, &EngineSettings::isCliChanged); }
    bool exporting() const { return m_exporting; }
    void setExporting(bool value) { change(m_exporting, value, &EngineSettings::exportingChanged); }
    bool exportIsDng() const { return m_exportIsDng; }
    void setExportIsDng(bool value) { change(m_exportIsDng, value, &EngineSettings::exportIsDngChanged); }
    int deviceId() const { return m_deviceId; }
    void setDeviceId(int value) { change(m_deviceId, value, &EngineSettings::deviceIdChanged); }
    QColor overlayColor() const { return m_overlayColor; }
    void setOverlayColor(const QColor &value) {
        change(m_overlayColor, value, &EngineSettings::overlayColorChanged);
    }
    bool useNeuralEngine() const { return m_useNeuralEngine; }
    void setUseNeuralEngine(bool value) {
        change(m_useNeuralEngine, value, &EngineSettings::useNeuralEngineChanged);
    }
    bool recommendFilters() const { return m_preferences.recommendFilters; }
    void setRecommendFilters(bool value) {
        change(m_preferences.recommendFilters, value, &EngineSettings::recommendFiltersChanged);
    }
    bool resizingSupported() const { return m_preferences.resizingSupported; }
    void setResizingSupported(bool value) {
        change(m_preferences.resizingSupported, value, &EngineSettings::resizingSupportedChanged);
    }
    QString faceDetection() const { return m_preferences.faceDetection; }
    void setFaceDetection(const QString &value) {
        change(m_preferences.faceDetection, value, &EngineSettings::faceDetectionChanged);
    }
    QStringList faceParts() const { return m_preferences.faceParts; }
    void setFaceParts(const QStringList &value) {
        change(m_preferences.faceParts, value, &EngineSettings::facePartsChanged);
    }
    int faceStrength() const { return m_preferences.faceStrength; }
    void setFaceStrength(int value) {
        change(m_preferences.faceStrength, value, &EngineSettings::faceStrengthChanged);
    }
    QString sharpeningModel() const { return m_preferences.sharpeningModel; }
    void setSharpeningModel(const QString &value) {
        change(m_preferences.sharpeningModel, value, &EngineSettings::sharpeningModelChanged);
    }
    QStringList sharpenBlurs() const { return m_preferences.sharpenBlurs; }
    void setSharpenBlurs(const QStringList &value) {
        change(m_preferences.sharpenBlurs, value, &EngineSettings::sharpenBlursChanged);
    }
    int sharpenStrength() const { return m_preferences.sharpenStrength; }
    void setSharpenStrength(int value) {
        change(m_preferences.sharpenStrength, value, &EngineSettings::sharpenStrengthChanged);
    }
    QString upscalingModel() const { return m_preferences.upscalingModel; }
    void setUpscalingModel(const QString &value) {
        change(m_preferences.upscalingModel, value, &EngineSettings::upscalingModelChanged);
    }
    bool enableDownscaling() const { return m_preferences.enableDownscaling; }
    void setEnableDownscaling(bool value) {
        change(m_preferences.enableDownscaling, value, &EngineSettings::enableDownscalingChanged);
    }
    QString upscalingType() const { return m_preferences.upscalingType; }
    void setUpscalingType(const QString &value) {
        change(m_preferences.upscalingType, value, &EngineSettings::upscalingTypeChanged);
    }
    float upscalingFactor() const { return m_preferences.upscalingFactor; }
    void setUpscalingFactor(float value) {
        change(m_preferences.upscalingFactor, value, &EngineSettings::upscalingFactorChanged);
    }
    int upscalingParam1Strength() const { return m_preferences.upscalingParam1Strength; }
    void setUpscalingParam1Strength(int value) {
        change(m_preferences.upscalingParam1Strength, value, &EngineSettings::upscalingParam1StrengthChanged);
    }
    int upscalingParam2Strength() const { return m_preferences.upscalingParam2Strength; }
    void setUpscalingParam2Strength(int value) {
        change(m_preferences.upscalingParam2Strength, value, &EngineSettings::upscalingParam2StrengthChanged);
    }
    int resolutionUnit() const { return m_preferences.resolutionUnit; }
    void setResolutionUnit(int value) {
        change(m_preferences.resolutionUnit, value, &EngineSettings::resolutionUnitChanged);
    }
    float resolution() const { return m_preferences.resolution; }
    void setResolution(float value) {
        change(m_preferences.resolution, value, &EngineSettings::resolutionChanged);
    }
    QString denoisingModel() const { return m_preferences.denoisingModel; }
    void setDenoisingModel(const QString &value) {
        change(m_preferences.denoisingModel, value, &EngineSettings::denoisingModelChanged);
    }
    QString denoisingRawModel() const { return m_preferences.denoisingRawModel; }
    void setDenoisingRawModel(const QString &value) {
        change(m_preferences.denoisingRawModel, value, &EngineSettings::denoisingRawModelChanged);
    }
    QStringList denoiseLevels() const { return m_preferences.denoiseLevels; }
    void setDenoiseLevels(const QStringList &value) {
        change(m_preferences.denoiseLevels, value, &EngineSettings::denoiseLevelsChanged);
    }
    QStringList denoiseRawLevels() const { return m_preferences.denoiseRawLevels; }
    void setDenoiseRawLevels(const QStringList &value) {
        change(m_preferences.denoiseRawLevels, value, &EngineSettings::denoiseRawLevelsChanged);
    }
    int denoiseStrength() const { return m_preferences.denoiseStrength; }
    void setDenoiseStrength(int value) {
        change(m_preferences.denoiseStrength, value, &EngineSettings::denoiseStrengthChanged);
    }
    int denoiseRawStrength() const { return m_preferences.denoiseRawStrength; }
    void setDenoiseRawStrength(int value) {
        change(m_preferences.denoiseRawStrength, value, &EngineSettings::denoiseRawStrengthChanged);
    }
    QString conflictResolutionPref() const { return m_preferences.conflictResolutionPref; }
    void setConflictResolutionPref(const QString &value) {
        change(m_preferences.conflictResolutionPref, value, &EngineSettings::conflictResolutionPrefChanged);
    }
    int exposureStrength() const { return m_preferences.exposureStrength; }
    void setExposureStrength(int value) {
        change(m_preferences.exposureStrength, value, &EngineSettings::exposureStrengthChanged);
    }
    int exposureRAWStrength() const { return m_preferences.exposureRAWStrength; }
    void setExposureRAWStrength(int value) {
        change(m_preferences.exposureRAWStrength, value, &EngineSettings::exposureRAWStrengthChanged);
    }
    int temperatureValue() const { return m_preferences.temperatureValue; }
    void setTemperatureValue(int value) {
        change(m_preferences.temperatureValue, value, &EngineSettings::temperatureValueChanged);
    }
    int opacityValue() const { return m_preferences.opacityValue; }
    void setOpacityValue(int value) {
        change(m_preferences.opacityValue, value, &EngineSettings::opacityValueChanged);
    }
    QString textModel() const { return m_preferences.textModel; }
    void setTextModel(const QString &value) {
        change(m_preferences.textModel, value, &EngineSettings::textModelChanged);
    }
    int textStrength() const { return m_preferences.textStrength; }
    void setTextStrength(int value) {
        change(m_preferences.textStrength, value, &EngineSettings::textStrengthChanged);
    }

Q_SIGNALS:
    void isCliChanged();
    void exportingChanged();
    void exportIsDngChanged();
    void deviceIdChanged();
    void overlayColorChanged();
    void useNeuralEngineChanged();
    void recommendFiltersChanged();
    void resizingSupportedChanged();
    void faceDetectionChanged();
    void facePartsChanged();
    void faceStrengthChanged();
    void sharpeningModelChanged();
    void sharpenBlursChanged();
    void sharpenStrengthChanged();
    void upscalingModelChanged();
    void enableDownscalingChanged();
    void upscalingTypeChanged();
    void upscalingFactorChanged();
    void upscalingParam1StrengthChanged();
    void upscalingParam2StrengthChanged();
    void resolutionUnitChanged();
    void resolutionChanged();
    void denoisingModelChanged();
    void denoisingRawModelChanged();
    void denoiseLevelsChanged();
    void denoiseRawLevelsChanged();
    void denoiseStrengthChanged();
    void denoiseRawStrengthChanged();
    void conflictResolutionPrefChanged();
    void exposureStrengthChanged();
    void exposureRAWStrengthChanged();
    void temperatureValueChanged();
    void opacityValueChanged();
    void textModelChanged();
    void textStrengthChanged();

private:
    template <typename T>
    void change(T &member, const T &value, void (EngineSettings::*changed)()) {
        if (member == value)
            return;
        member = value;
        Q_EMIT(this->*changed)();
    }

    Autopilot::Preferences m_preferences;
    bool m_isCli = false;
    bool m_exporting = false;
    bool m_exportIsDng = false;
    int m_deviceId = -2; ///< -2 automatic, -1 processor, 0 upward a graphics card
    QColor m_overlayColor = QColor(Qt::red);
    bool m_useNeuralEngine = true;
};
