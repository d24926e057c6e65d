#pragma once

#include <QString>
#include <QStringList>

/// The vocabulary of filters: every name that settings, presets, requests, Autopilot's answers and model
/// definitions share. They are stored in files, so none may change. A *filter* is an entry of a picture's
/// settings ("Denoise", "Denoise2"), its *category* the kind of work it does, its *model* what carries it
/// out; an *operation* is the engine's code that runs a model. Names that only one definition file has, such
/// as the parameters of a model, are only there and come with the catalogue.

/// Categories, which are also the names of filters without a number.
namespace Categories {

inline const QString Denoise = QStringLiteral("Denoise");
inline const QString Raw = QStringLiteral("RAW");
inline const QString Sharpen = QStringLiteral("Sharpen");
inline const QString Enhance = QStringLiteral("Enhance"); ///< shown as Upscale
inline const QString FaceRecovery = QStringLiteral("Face Recovery");
inline const QString TextRecovery = QStringLiteral("Text Recovery");
inline const QString Exposure = QStringLiteral("Exposure Adjust");
inline const QString WhiteBalance = QStringLiteral("White Balance Adjust");
inline const QString Inpaint = QStringLiteral("Inpaint");

/// Those that Autopilot and a batch run put on a picture, in the order in which they run.
inline QStringList processingOrder() {
    return {Raw, Exposure, WhiteBalance, Denoise, Sharpen, FaceRecovery, Enhance, TextRecovery};
}

/// Those that can be limited to a part of the picture.
inline bool takesSubject(const QString &category) {
    return category == Denoise || category == Sharpen || category == Exposure || category == WhiteBalance;
}

inline QStringList all() {
    return processingOrder() + QStringList(Inpaint);
}

} // namespace Categories

/// Models whose name alone decides something.
namespace Models {

inline const QString LowLightBeta = QStringLiteral("Low Light Beta");
inline const QString SevereNoiseBeta = QStringLiteral("Severe Noise Beta");
inline const QString SevereNoise = QStringLiteral("Severe Noise");
inline const QString RawNative = QStringLiteral("RAW Native");
inline const QString RawStandard = QStringLiteral("RAW Standard");
inline const QString LinearRaw = QStringLiteral("Linear RAW"); ///< for files that hold no mosaic
inline const QString SharpenStandardV2 = QStringLiteral("Sharpen Standard v2");
inline const QString SharpenStrong = QStringLiteral("Sharpen Strong");
inline const QString SharpenStandard = QStringLiteral("Sharpen Standard"); ///< lens and motion blur
inline const QString StandardV2 = QStringLiteral("Standard V2");
inline const QString HighFidelityV2 = QStringLiteral("High Fidelity V2");
inline const QString Graphics = QStringLiteral("CGI"); ///< shown as Graphics
inline const QString LowResolution = QStringLiteral("Low Resolution");

} // namespace Models

/// Keys of a filter's record, of a picture's controls map, and of the catalogue.
namespace Keys {

inline const QString Category = QStringLiteral("category");
inline const QString Model = QStringLiteral("model");
inline const QString Params = QStringLiteral("params");
inline const QString Enabled = QStringLiteral("enabled");
inline const QString SubjectSettings = QStringLiteral("subjectSettings");

inline const QString AutoPilot = QStringLiteral("autoPilot");
inline const QString AutoPilotSettings = QStringLiteral("autoPilotSettings");
inline const QString JustSaved = QStringLiteral("justSaved");
inline const QString NoiseLevel = QStringLiteral("noise_level");
inline const QString BlurLevel = QStringLiteral("blur_level");
inline const QString ChangesCount = QStringLiteral("changesCount");

inline const QString Gui = QStringLiteral("gui");
inline const QString Parameters = QStringLiteral("parameters");
inline const QString Default = QStringLiteral("default");
inline const QString Minimum = QStringLiteral("min");
inline const QString Maximum = QStringLiteral("max");

} // namespace Keys

/// Keys under "params" that no definition file names, because no network reads them.
namespace Params {

inline const QString Auto = QStringLiteral("auto"); ///< the values are Autopilot's
inline const QString DeselectedByUpscaling = QStringLiteral("deselectedByUpscaling");
inline const QString SelectedFaces = QStringLiteral("selectedFaces");
inline const QString Strokes = QStringLiteral("strokes");
inline const QString Mask = QStringLiteral("mask");
inline const QString Locked = QStringLiteral("locked");

/// The size of an Enhance filter: `Mode` names the one of the three that counts.
inline const QString Mode = QStringLiteral("mode");
inline const QString Scale = QStringLiteral("scale");   ///< output over (cropped) input
inline const QString Width = QStringLiteral("width");   ///< output pixels
inline const QString Height = QStringLiteral("height"); ///< output pixels
inline const QString Resolution = QStringLiteral("resolution");
inline const QString ResolutionUnit = QStringLiteral("resolutionUnit");
inline const QString Updated = QStringLiteral("updated"); ///< the change came from the user

inline QStringList sizeModes() {
    return {Scale, Width, Height};
}

} // namespace Params
