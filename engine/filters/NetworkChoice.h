#pragma once

#include "engine/filters/Filters.h"
#include "engine/inference/NetworkPass.h"

/// Which of a model's networks runs with the values of a request, and with what conditions.
namespace NetworkChoice {

/// Conditions are sums over roles of the parameters and of these besides:
inline const QString Always = QStringLiteral("always"); ///< what a model does by itself when it enlarges
inline const QString Noise = QStringLiteral("noise");   ///< the picture's measured noise, samples 0 to 1
inline const QString ChromaNoise = QStringLiteral("chromaNoise"); ///< noise of colour beyond white noise's

/// What the definition's networks ask for and the engine doesn't know; empty when nothing.
QString problem(const ModelDefinition &model);

struct Choice {
    std::optional<NetworkPass> pass; ///< none when the values ask for no change
    QString error{};
};

/// The network whose flags fit with the smallest step that reaches `scale`, else the largest step.
Choice make(const FilterInput &input, double scale);

} // namespace NetworkChoice
