#include "engine/filters/Filters.h"

#include "engine/filters/DenoiseFilter.h"
#include "engine/filters/EnhanceFilter.h"
#include "engine/filters/ExposureFilter.h"
#include "engine/filters/SharpenFilter.h"
#include "engine/filters/WhiteBalanceFilter.h"

#include <QHash>

namespace {

using Make = std::unique_ptr<Stage> (*)(const FilterInput &);

const QHash<QString, Make> &operations() {
    static const QHash<QString, Make> table = {
        {QStringLiteral("denoise"), makeDenoiseStage},
        {QStringLiteral("sharpen"), makeSharpenStage},
        {QStringLiteral("enhance"), makeEnhanceStage},
        {QStringLiteral("exposure"), makeExposureStage},
        {QStringLiteral("whiteBalance"), makeWhiteBalanceStage},
    };
    return table;
}

} // namespace

bool Filters::supports(const ModelDefinition &definition, QString *why) {
    if (definition.kind != QStringLiteral("classical"))
        *why = QStringLiteral("this version runs no models of kind \"%1\"").arg(definition.kind);
    else if (!operations().contains(definition.operation))
        *why = QStringLiteral("there is no operation \"%1\"").arg(definition.operation);
    else
        return true;
    return false;
}

std::unique_ptr<Stage> Filters::make(const FilterInput &input) {
    return operations().value(input.values.definition().operation)(input);
}
