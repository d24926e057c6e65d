#include "engine/catalogue/ModelCatalogue.h"

#include <QDebug>
#include <QDir>
#include <QFile>

namespace {

constexpr qint64 MaxFile = 256 * 1024 + 1;
constexpr qsizetype MaxFiles = 1000;

QStringList definitionFiles(const QString &directory) {
    QStringList files;
    const QDir root(directory);
    for (const QString &folder : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QDir inner(root.filePath(folder));
        for (const QString &file : inner.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name)) {
            if (files.size() == MaxFiles) {
                qWarning().noquote() << "[ENGINE] More than" << MaxFiles
                                     << "model definitions, the rest is skipped";
                return files;
            }
            files.append(inner.filePath(file));
        }
    }
    return files;
}

QVariantMap parameterMap(const ParameterDefinition &parameter) {
    if (parameter.isFlag)
        return {{QStringLiteral("default"), parameter.initial != 0}};
    return {{QStringLiteral("default"), parameter.initial},
            {QStringLiteral("min"), parameter.minimum},
            {QStringLiteral("max"), parameter.maximum}};
}

} // namespace

std::shared_ptr<const ModelCatalogue> ModelCatalogue::read(const QString &directory,
                                                           const Supports &supports) {
    auto catalogue = std::make_shared<ModelCatalogue>();
    for (const QString &path : definitionFiles(directory)) {
        const auto skip = [&path](const QString &why) {
            qWarning().noquote() << "[ENGINE] Model definition" << path << "is skipped:" << why;
        };
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            skip(file.errorString());
            continue;
        }
        QString error;
        const auto definition = parseModelDefinition(file.read(MaxFile), &error);
        if (!definition || !supports(*definition, &error)) {
            skip(error);
            continue;
        }
        auto &models = catalogue->m_models[definition->category];
        if (models.contains(definition->model))
            skip(QStringLiteral("\"%1\" is already defined").arg(definition->model));
        else
            models.insert(definition->model, *definition);
    }
    return catalogue;
}

const ModelDefinition *ModelCatalogue::find(const QString &category, const QString &model) const {
    const auto models = m_models.constFind(category);
    if (models == m_models.cend() || models->isEmpty())
        return nullptr;
    const auto found = model.isEmpty() ? models->cbegin() : models->constFind(model);
    return found == models->cend() ? nullptr : &*found;
}

QVariantMap ModelCatalogue::toMap() const {
    QVariantMap map;
    for (auto category = m_models.cbegin(); category != m_models.cend(); ++category) {
        QVariantMap models;
        for (const ModelDefinition &definition : *category) {
            QVariantMap parameters;
            for (const ParameterDefinition &parameter : definition.parameters)
                parameters.insert(parameter.name, parameterMap(parameter));
            models.insert(definition.model,
                          QVariantMap{{QStringLiteral("gui"),
                                       QVariantMap{{QStringLiteral("parameters"), parameters}}}});
        }
        map.insert(category.key(), models);
    }
    return map;
}
