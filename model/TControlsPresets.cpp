#include "contracts/FilterNames.h"
#include "model/ParameterBounds.h"
#include "model/TControls.h"

#include <QDebug>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QVariantMap warning(const QString &title, const QString &message) {
    return {{u"title"_s, title}, {u"message"_s, message}};
}

QString categoryIn(const QVariantMap &controls, const QString &filterName) {
    return controls.value(filterName).toMap().value(Keys::Category).toString();
}

bool staysOut(const QString &name) {
    return name == Categories::Raw || name == Categories::Inpaint;
}

/// Gives the upscale the size of its input; true when it had another.
bool keepSize(QVariantMap &filter) {
    QVariantMap params = filter.value(Keys::Params).toMap();
    const bool differs =
        params.value(Params::Mode) != Params::Scale || params.value(Params::Scale).toDouble() != 1.0;
    if (differs)
        params.insert({{Params::Mode, Params::Scale}, {Params::Scale, 1}});
    filter.insert(Keys::Params, params);
    return differs;
}

QString freeName(const QString &category, const TImageSettings &taken) {
    QString name = category;
    if (category == Categories::Enhance)
        return name;
    for (int number = 2; taken.filterControls.contains(name); ++number)
        name = category + QString::number(number);
    return name;
}

bool hasSubject(const QString &category) {
    const QStringList categories = {Categories::Denoise, Categories::Sharpen, Categories::Exposure,
                                    Categories::WhiteBalance};
    return std::any_of(categories.cbegin(), categories.cend(),
                       [&category](const QString &one) { return category.contains(one); });
}

} // namespace

QVariantMap TControls::applyPresetToImage(const QString &imagePath, const QVariantMap &controls,
                                          const QStringList &filterOrder, bool resizingSupported,
                                          bool allowEmit) {
    if (!m_loadedImages.contains(imagePath))
        return warning(tr("Could not apply preset"), tr("Image does not exist"));
    TImageSettings &settings = settingsOf(imagePath);
    // Names are chosen by what the image had at the start: two filters of one category in a preset come to
    // one name on an image without that category.
    const TImageSettings snapshot = settings;
    QStringList order = snapshot.filterOrder;
    // Read from the preset: an upscale of the image that the preset doesn't mention is none here.
    const bool upscaled = std::any_of(order.cbegin(), order.cend(), [&controls](const QString &name) {
        return categoryIn(controls, name) == Categories::Enhance;
    });

    QVariantMap result;
    for (const QString &name : filterOrder) {
        QVariantMap filter = controls.value(name).toMap();
        const QString category = categoryIn(controls, name);
        if (staysOut(name) || staysOut(category))
            continue;
        if (m_modelNames.value(category).toList().isEmpty()) {
            qWarning() << "The preset's filter" << name << "is passed over; no model for" << category;
            continue;
        }
        if (category == Categories::Enhance && upscaled) {
            result = warning(
                tr("Upscale was not applied"),
                tr("The preset contained an Upscale enhancement which cannot be applied more than once."));
            continue;
        }
        if (category == Categories::Enhance && !resizingSupported && keepSize(filter)) {
            result = warning(tr("Upscale filter modified"),
                             tr("The preset contained an Upscale enhancement which cannot change the image "
                                "size in this mode."));
        }
        const QString newName = freeName(category, snapshot);
        order.insert(upscaled ? order.size() - 1 : order.size(), newName);
        addFromPreset(settings, newName, category, filter);
    }

    settings.presetApplied = true;
    settings.presetAppliedNoModifications = true;
    settings.initialFiltersApplied = true;
    if (allowEmit)
        setFilterOrder(order, imagePath);
    else
        settings.setFilterOrder(order);
    return result;
}

void TControls::addFromPreset(TImageSettings &settings, const QString &filterName, const QString &category,
                              const QVariantMap &filter) {
    settings.initializeFilter(filterName, startOf(category));
    if (settings.autoPilotSettings.contains(category))
        settings.mergeFilter(filterName, settings.autoPilotSettings.value(category).toMap());
    // The category's first filter has its subject reset, also where a numbered one is added.
    if (hasSubject(category))
        settings.resetSubject(category,
                              category.contains(Categories::Sharpen) ? m_defaultSubjectType : u"All"_s);
    settings.setParam(filterName, Keys::Enabled, true);
    settings.mergeFilter(filterName, bounded(filter, settings.filter(filterName).model));
}

QVariantMap TControls::bounded(const QVariantMap &filter, const QString &ownModel) const {
    const QVariantMap models = m_modelParamInfo.value(filter.value(Keys::Category).toString()).toMap();
    const ParameterBounds::Bounded fit = ParameterBounds::bounded(filter, models, ownModel);
    for (const QString &problem : fit.problems)
        qWarning().noquote() << problem;
    return fit.filter;
}

QVariantMap TControls::boundedControls(const QVariantMap &controls) const {
    QVariantMap fit = controls;
    for (auto entry = fit.begin(); entry != fit.end(); ++entry) {
        const QVariantMap filter = entry->toMap();
        if (m_modelParamInfo.contains(filter.value(Keys::Category).toString()))
            *entry = bounded(filter);
    }
    return fit;
}

QStringList TControls::normalisedOrder(const QStringList &order) const {
    QStringList normal = order;
    normal.removeDuplicates();
    if (normal.removeOne(Categories::Raw))
        normal.prepend(Categories::Raw);
    if (normal.removeOne(Categories::Enhance))
        normal.append(Categories::Enhance);
    return normal;
}
