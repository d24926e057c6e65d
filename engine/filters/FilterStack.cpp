#include "engine/filters/FilterStack.h"

#include "engine/filters/Filters.h"
#include "engine/filters/HotPixelStage.h"

namespace {

const QStringList &knownCategories() {
    static const QStringList categories = {QStringLiteral("Denoise"),
                                           QStringLiteral("Sharpen"),
                                           QStringLiteral("Enhance"),
                                           QStringLiteral("Face Recovery"),
                                           QStringLiteral("Text Recovery"),
                                           QStringLiteral("Exposure Adjust"),
                                           QStringLiteral("White Balance Adjust"),
                                           QStringLiteral("Inpaint"),
                                           QStringLiteral("RAW")};
    return categories;
}

/// One filter of the controls map.
struct FilterRecord {
    QString name;
    QString category;
    QString model;
    QVariantMap params;
    QString subject;
    bool enabled = false;
};

FilterRecord readRecord(const QString &name, const QVariantMap &controls) {
    const QVariantMap map = controls.value(name).toMap();
    FilterRecord record;
    record.name = name;
    record.category = map.value(QStringLiteral("category")).toString();
    if (record.category.isEmpty()) {
        record.category = name;
        while (!record.category.isEmpty() && record.category.back().isDigit())
            record.category.chop(1);
    }
    record.model = map.value(QStringLiteral("model")).toString();
    record.params = map.value(QStringLiteral("params")).toMap();
    record.subject =
        map.value(QStringLiteral("subjectSettings")).toMap().value(QStringLiteral("model")).toString();
    record.enabled = map.value(QStringLiteral("enabled")).toBool();
    return record;
}

bool denoises(const ModelDefinition &definition) {
    return definition.operation == QStringLiteral("denoise");
}

} // namespace

bool hasEnabledFilter(const ProcRequest &request) {
    return std::any_of(request.filterOrder.begin(), request.filterOrder.end(),
                       [&](const QString &name) { return readRecord(name, request.params).enabled; });
}

QString buildFilterStack(const ProcRequest &request, const ModelCatalogue &catalogue,
                         const ImageStatistics &statistics, NetworkStore &networks, StageChain &chain) {
    RunLog log;
    for (const QString &name : request.filterOrder) {
        const FilterRecord record = readRecord(name, request.params);
        if (!record.enabled)
            continue;
        const QString problem = catalogue.problem(record.category, record.model);
        if (!problem.isEmpty())
            return QStringLiteral("The %1 model \"%2\" cannot be used: %3")
                .arg(record.category, record.model, problem);
        if (!catalogue.hasCategory(record.category)) {
            if (!knownCategories().contains(record.category))
                return QStringLiteral("There is no filter \"%1\"").arg(record.category);
            log.note(QStringLiteral("%1 has no installed model and is skipped").arg(record.category));
            continue;
        }
        const ModelDefinition *definition = catalogue.find(record.category, record.model);
        if (!definition)
            return QStringLiteral("The %1 model \"%2\" is not installed").arg(record.category, record.model);
        if (!record.subject.isEmpty() && record.subject != QStringLiteral("All") &&
            record.subject != QStringLiteral("none"))
            log.inform(
                QStringLiteral("Subjects cannot be told apart yet: %1 works on the whole picture").arg(name));
        const FilterValues values(name, *definition, record.params, log);
        Made made = Filters::make({values, statistics, chain.outputSize(), networks, log});
        if (!made.error.isEmpty())
            return made.error;
        if (!made.stage)
            continue;
        chain.append(std::move(made.stage), values.key());
        if (request.hotPixelCorrection && request.input.isRaw && denoises(*definition))
            chain.append(makeHotPixelStage(), QByteArrayLiteral("hot pixels"));
    }
    return {};
}
