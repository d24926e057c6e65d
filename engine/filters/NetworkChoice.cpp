#include "engine/filters/NetworkChoice.h"

#include "engine/catalogue/Roles.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

/// Up to these strengths the picture's own noise comes in by degrees, so that a slider at its minimum
/// changes next to nothing. Of a model for heavy noise a tenth is much already.
constexpr double FullNoiseStrength = 0.25;
constexpr double FullChromaStrength = 0.1;
constexpr double MostCondition = 2; ///< networks learn values from 0 to 1, some a little more

/// Noise of colour: in spots, and beyond what white noise would have, which is 1.52 times that of
/// brightness. The margin keeps an error of the measurement from looking like coloured noise.
double colourNoise(const ImageStatistics &statistics) {
    constexpr double White = 1.52, Margin = 1.25;
    const double chroma = double(statistics.chromaNoise), spots = double(statistics.chromaBlotches),
                 white = White * Margin * double(statistics.lumaNoise);
    return std::sqrt(std::max(0.0, chroma * chroma - white * white) + spots * spots);
}

const NetworkDefinition *pick(const FilterInput &input, double scale) {
    const NetworkDefinition *best = nullptr;
    for (const NetworkDefinition &one : input.values.definition().networks) {
        bool fits = true;
        for (auto flag = one.when.begin(); flag != one.when.end(); ++flag)
            fits = fits && input.values.flag(flag.key()) == flag.value();
        if (!fits)
            continue;
        const bool better = !best || (best->scale < scale ? one.scale > best->scale
                                                          : one.scale >= scale && one.scale < best->scale);
        if (better)
            best = &one;
    }
    return best;
}

double given(const QString &role, const FilterInput &input, double scale) {
    if (role == NetworkChoice::Always)
        return std::clamp(scale - 1, 0.0, 1.0);
    if (role == NetworkChoice::Noise || role == NetworkChoice::ChromaNoise) {
        const double strength = input.values.number(Roles::Strength);
        return role == NetworkChoice::Noise
                   ? std::min(1.0, strength / FullNoiseStrength) * double(input.statistics.lumaNoise)
                   : std::min(1.0, strength / FullChromaStrength) * colourNoise(input.statistics);
    }
    return input.values.number(role);
}

} // namespace

QString NetworkChoice::problem(const ModelDefinition &model) {
    const auto known = [&model](const QString &role) {
        return role == Always || role == Noise || role == ChromaNoise || model.byRole(role);
    };
    for (const NetworkDefinition &network : model.networks) {
        QStringList roles = network.when.keys();
        for (const NetworkDefinition::Condition &condition : network.conditions)
            roles += condition.keys();
        for (const QString &role : std::as_const(roles))
            if (!known(role))
                return QCoreApplication::translate("Engine",
                                                   "no parameter has the role \"%1\" that %2 asks for")
                    .arg(role, network.file);
    }
    return {};
}

NetworkChoice::Choice NetworkChoice::make(const FilterInput &input, double scale) {
    const NetworkDefinition *network = pick(input, scale);
    if (!network)
        return {std::nullopt,
                QCoreApplication::translate("Engine", "No network of the model \"%1\" fits its settings")
                    .arg(input.values.definition().model)};
    std::vector<float> values;
    for (const NetworkDefinition::Condition &condition : network->conditions) {
        double sum = 0;
        for (auto weight = condition.begin(); weight != condition.end(); ++weight)
            sum += weight.value() * given(weight.key(), input, scale);
        values.push_back(float(std::clamp(sum, 0.0, MostCondition)));
    }
    const bool idle = std::all_of(values.begin(), values.end(), [](float v) { return v <= 0; });
    if (idle && (network->scale == 1 || scale <= 1))
        return {};
    Choice choice;
    if (auto loaded = input.networks.get(*network, &choice.error))
        choice.pass.emplace(*network, std::move(loaded), std::move(values));
    return choice;
}
