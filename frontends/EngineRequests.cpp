#include "frontends/EngineRequests.h"

#include "frontends/TImageUtils.h"

EngineInput EngineRequests::input(const QVariantMap &image) {
    EngineInput input;
    input.uid = image.value(QStringLiteral("uid")).toString();
    input.filepath = image.value(QStringLiteral("filepath")).toString();
    input.image = image.value(QStringLiteral("image")).value<std::shared_ptr<ImageData>>();
    input.metadata = image.value(QStringLiteral("metadata")).toMap();
    const double resolution = image.value(QStringLiteral("resolution")).toDouble();
    if (resolution > 0)
        input.resolution = resolution;
    input.resolutionUnit = image.value(QStringLiteral("resolutionUnit"), input.resolutionUnit).toInt();
    input.isRaw =
        input.metadata.value(QStringLiteral("isRaw"), TImageUtils::isRawFile(input.filepath)).toBool();
    return input;
}

AutopilotOptions EngineRequests::autopilotOptions(const QVariantMap &options,
                                                  const Autopilot::Preferences &preferences) {
    return {options.value(QStringLiteral("regenerateMask")).toBool(),
            options.value(QStringLiteral("forceFaceDetect")).toBool(), preferences};
}

QVariantMap EngineRequests::result(int requestUid, const ProcRequest &request, const ProcResult &result) {
    return {{QStringLiteral("requestUid"), requestUid},
            {QStringLiteral("requestRoi"), result.region},
            {QStringLiteral("changesCount"), request.params.value(QStringLiteral("changesCount")).toInt()},
            {QStringLiteral("scale"), result.scale},
            {QStringLiteral("export"), request.full || request.exporting},
            {QStringLiteral("filepath"), request.input.filepath},
            {QStringLiteral("error"), result.error},
            {QStringLiteral("image"), QVariant::fromValue(result.image)}};
}
