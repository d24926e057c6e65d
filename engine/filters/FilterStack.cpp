#include "engine/filters/FilterStack.h"

#include "contracts/FilterNames.h"
#include "engine/filters/Filters.h"
#include "engine/filters/HotPixelStage.h"

#include <QCoreApplication>

namespace {

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
    record.category = map.value(Keys::Category).toString();
    if (record.category.isEmpty()) {
        record.category = name;
        while (!record.category.isEmpty() && record.category.back().isDigit())
            record.category.chop(1);
    }
    record.model = map.value(Keys::Model).toString();
    record.params = map.value(Keys::Params).toMap();
    record.subject = map.value(Keys::SubjectSettings).toMap().value(Keys::Model).toString();
    record.enabled = map.value(Keys::Enabled).toBool();
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
            return QCoreApplication::translate("Engine", "The %1 model \"%2\" cannot be used: %3")
                .arg(record.category, record.model, problem);
        if (!catalogue.hasCategory(record.category)) {
            if (!Categories::all().contains(record.category))
                return QCoreApplication::translate("Engine", "There is no filter \"%1\"")
                    .arg(record.category);
            log.note(QStringLiteral("%1 has no installed model and is skipped").arg(record.category));
            continue;
        }
        const ModelDefinition *definition = catalogue.find(record.category, record.model);
        if (!definition)
            return QCoreApplication::translate("Engine", "The %1 model \"%2\" is not installed")
                .arg(record.category, record.model);
        if (!record.subject.isEmpty() && record.subject != QStringLiteral("All") &&
            record.subject != QStringLiteral("none"))
            log.inform(
                QStringLiteral("Subjects cannot be told apart yet: %1 works on the whole picture").arg(name));
        const FilterValues values(name, *definition, record.params, log);
        PreparedStage prepared = Filters::make({values, statistics, chain.outputSize(), networks, log});
        if (!prepared.error.isEmpty())
            return prepared.error;
        if (!prepared.stage)
            continue;
        chain.append(std::move(prepared.stage), values.key());
        if (request.hotPixelCorrection && request.input.isRaw && denoises(*definition))
            chain.append(makeHotPixelStage(), QByteArrayLiteral("hot pixels"));
    }
    return {};
}
