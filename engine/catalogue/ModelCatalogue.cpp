#include "engine/catalogue/ModelCatalogue.h"

#include "contracts/FilterNames.h"

#include <QCoreApplication>
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

/// Finds the weight files of a definition; an error text when one lies elsewhere.
QString placeNetworks(ModelDefinition &definition, const QString &path, const QString &root) {
    const QString inside = QDir::cleanPath(QFileInfo(root).absoluteFilePath()) + QLatin1Char('/');
    for (NetworkDefinition &network : definition.networks) {
        network.path = QDir::cleanPath(QFileInfo(path).absoluteDir().absoluteFilePath(network.file));
        if (!network.path.startsWith(inside))
            return QCoreApplication::translate("Engine", "%1 lies outside the models' folder")
                .arg(network.file);
    }
    return {};
}

template <typename T>
const T *lookUp(const QMap<QString, QMap<QString, T>> &map, const QString &category, const QString &model) {
    const auto models = map.constFind(category);
    if (models == map.cend() || models->isEmpty())
        return nullptr;
    const auto found = model.isEmpty() ? models->cbegin() : models->constFind(model);
    return found == models->cend() ? nullptr : &*found;
}

QVariantMap parameterMap(const ParameterDefinition &parameter) {
    if (parameter.isFlag)
        return {{Keys::Default, parameter.initial != 0}};
    return {{Keys::Default, parameter.initial},
            {Keys::Minimum, parameter.minimum},
            {Keys::Maximum, parameter.maximum}};
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
        auto definition = parseModelDefinition(file.read(MaxFile), &error);
        if (!definition) {
            skip(error);
            continue;
        }
        error = placeNetworks(*definition, path, directory);
        if (!error.isEmpty() || !supports(*definition, &error)) {
            skip(error);
            catalogue->m_problems[definition->category].insert(definition->model, error);
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
    return lookUp(m_models, category, model);
}

QString ModelCatalogue::problem(const QString &category, const QString &model) const {
    const QString *found = find(category, model) ? nullptr : lookUp(m_problems, category, model);
    return found ? *found : QString();
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
                          QVariantMap{{Keys::Gui, QVariantMap{{Keys::Parameters, parameters}}}});
        }
        map.insert(category.key(), models);
    }
    return map;
}
