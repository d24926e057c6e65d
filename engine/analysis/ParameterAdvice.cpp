#include "contracts/FilterNames.h"
#include "engine/analysis/Advice.h"

namespace Analysis {

ValueOf byRole(const QMap<QString, double> &values) {
    return [values](const ModelDefinition &, const ParameterDefinition &parameter) {
        const auto value = values.constFind(parameter.role);
        return value == values.cend() ? std::nullopt : std::optional(*value);
    };
}

void adviseParameters(const AdviceInput &input, const ValueOf &valueOf, Advice &advice) {
    const auto take = [&](const ModelDefinition &model) {
        for (const ParameterDefinition &parameter : model.parameters) {
            const auto value = valueOf(model, parameter);
            const double number = value ? parameter.limited(*value) : parameter.initial;
            advice.parameters.insert(parameter.name, parameter.isFlag ? QVariant(number != 0) : number);
        }
    };
    for (const ModelDefinition &model : input.models.models(advice.category))
        take(model);
    if (const ModelDefinition *recommended = input.models.find(advice.category, advice.model))
        take(*recommended);
}

double strengthFor(const ModelDefinition *model, ModelDefinition::Fault fault, double measured,
                   const QStringList &flags) {
    const double reach = model ? model->reach(fault, flags) : 0;
    return reach > 0 ? std::clamp(measured / reach, SmallestStrength, 1.0) : SmallestStrength;
}

} // namespace Analysis
