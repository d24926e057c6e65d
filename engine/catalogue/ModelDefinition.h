#pragma once

#include "engine/catalogue/NetworkDefinition.h"

#include <QByteArray>
#include <QJsonObject>

#include <algorithm>
#include <optional>

/// A parameter of a model: its name in settings and the role it plays in the operation.
struct ParameterDefinition {
    QString name;
    QString role;
    bool isFlag = false; ///< true or false, held as 1 or 0
    double initial = 0;
    double minimum = 0;
    double maximum = 1;

    /// The value within the range.
    double limited(double value) const { return std::clamp(value, minimum, maximum); }
};

/// One model as its definition file describes it.
struct ModelDefinition {
    QString category;
    QString model;
    QString kind;      ///< "classical" or "network"
    QString operation; ///< the engine's code that runs it
    QList<ParameterDefinition> parameters;
    QList<NetworkDefinition> networks; ///< of a "network", at least one
    QJsonObject constants;             ///< what else the operation needs; fixed for the model

    /// Null when there is none.
    const ParameterDefinition *byRole(const QString &role) const;
    double constant(const QString &name, double fallback) const;

    /// What a network of scale 1 gets as its first conditions.
    enum Fault { Noise, ChromaNoise, Blur };
    /// How much of a fault a strength of 1 takes away with the flags of these roles up: noise as a standard
    /// deviation on the 8-bit scale, blur as its spread in pixels. 0 when it takes none.
    double reach(Fault fault, const QStringList &flags = {}) const;
};

/// Reads a definition file's contents: JSON of at most 256 KiB, at most 64 parameters, ranges
/// finite and in order. On failure nothing, and `error` says why.
std::optional<ModelDefinition> parseModelDefinition(const QByteArray &json, QString *error);
