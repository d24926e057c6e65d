#include "engine/filters/Filters.h"

#include "engine/filters/EnhanceFilter.h"
#include "engine/filters/ExposureFilter.h"
#include "engine/filters/NetworkChoice.h"
#include "engine/filters/RestoreFilter.h"
#include "engine/filters/WhiteBalanceFilter.h"

#include <QCoreApplication>
#include <QHash>

namespace {

using Make = PreparedStage (*)(const FilterInput &);

/// By kind and operation.
const QHash<QString, Make> &operations() {
    static const QHash<QString, Make> table = {
        {QStringLiteral("classical/exposure"), makeExposureStage},
        {QStringLiteral("classical/whiteBalance"), makeWhiteBalanceStage},
        {QStringLiteral("network/denoise"), makeRestoreStage},
        {QStringLiteral("network/sharpen"), makeRestoreStage},
        {QStringLiteral("network/enhance"), makeEnhanceStage},
    };
    return table;
}

QString keyOf(const ModelDefinition &definition) {
    return definition.kind + QLatin1Char('/') + definition.operation;
}

} // namespace

bool Filters::supports(const ModelDefinition &definition, NetworkStore &networks, QString *why) {
    if (!operations().contains(keyOf(definition)))
        *why = QCoreApplication::translate("Engine", "this version has no operation \"%1\" of kind \"%2\"")
                   .arg(definition.operation, definition.kind);
    else
        *why = NetworkChoice::problem(definition);
    for (const NetworkDefinition &network : definition.networks)
        if (why->isEmpty())
            networks.get(network, why);
    return why->isEmpty();
}

PreparedStage Filters::make(const FilterInput &input) {
    return operations().value(keyOf(input.values.definition()))(input);
}
