#pragma once

#include "engine/catalogue/ModelDefinition.h"

#include <QMap>
#include <QVariantMap>

#include <functional>
#include <memory>

/// The installed models, by category and name; never changed once read.
class ModelCatalogue {
public:
    /// Whether this engine can run a definition; if not, `why` says what is missing.
    using Supports = std::function<bool(const ModelDefinition &, QString *why)>;

    /// Reads `directory`/<category>/<model>.json, all of them in the order of their paths. A file
    /// that is damaged, too large, not supported or a second one for its model is skipped with a
    /// line in the log. Weight files are somewhere below `directory`.
    static std::shared_ptr<const ModelCatalogue> read(const QString &directory, const Supports &supports);
    /// Every sound definition, whether or not it can be run.
    static std::shared_ptr<const ModelCatalogue> read(const QString &directory) {
        return read(directory, [](const ModelDefinition &, QString *) { return true; });
    }

    /// Whether no definition was found, not even one that can't be used.
    bool isEmpty() const { return m_models.isEmpty() && m_problems.isEmpty(); }
    bool hasCategory(const QString &category) const { return m_models.contains(category); }
    QMap<QString, ModelDefinition> models(const QString &category) const { return m_models.value(category); }
    /// Null when there is none. An empty name gives the category's first model.
    const ModelDefinition *find(const QString &category, const QString &model) const;
    /// Why a model that has a definition isn't there; empty when there is nothing to say. An empty
    /// name asks for the category's first model.
    QString problem(const QString &category, const QString &model) const;
    /// Category to model to { gui: { parameters: { name: { default, min, max } } } }.
    QVariantMap toMap() const;

private:
    QMap<QString, QMap<QString, ModelDefinition>> m_models;
    QMap<QString, QMap<QString, QString>> m_problems;
};
