#include "cli/SettingsMerge.h"

#include "cli/Console.h"
#include "model/TControls.h"

#include <QDebug>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool hasSubject(const QString &category) {
    static const QSet<QString> categories = {Categories::Denoise, Categories::Sharpen, Categories::Exposure,
                                             Categories::WhiteBalance};
    return categories.contains(category);
}

} // namespace

SettingsMerge::SettingsMerge(TControls &controls, const BatchOptions &options, const QStringList &filterOrder,
                             const QMap<QString, QString> &categories)
    : m_controls(controls)
    , m_options(options)
    , m_filterOrder(filterOrder)
    , m_categories(categories) {
}

void SettingsMerge::apply(const QVariantMap &autopilot) {
    if (m_options.overrideAutopilot)
        console::outLine(u"Overwriting Autopilot values"_s);
    if (!hasPreset() || !m_options.overrideAutopilot)
        applyAutopilot(autopilot);
    if (hasPreset())
        applyPreset();
    applyOverrides(autopilot);
    setOrder();
    qInfo() << "[CLI] Current filter order:" << m_controls.filterOrder();
}

void SettingsMerge::initialize(const QString &category, const QVariantMap &settings) {
    m_controls.initializeFilter(category, category);
    m_controls.setParams(category, settings);
    if (hasSubject(category))
        m_controls.initializeSubject(category);
}

void SettingsMerge::applyAutopilot(const QVariantMap &autopilot) {
    for (const QString &category : m_filterOrder) {
        const QVariantMap settings = autopilot.value(category).toMap();
        if (settings.value(Keys::Enabled).toBool())
            initialize(category, settings);
    }
}

void SettingsMerge::applyPreset() {
    setOrder();
    const BatchPreset &preset = m_options.preset;
    const QVariantMap warning =
        m_controls.applyPresetToImage(m_controls.currentImage(), preset.controls, preset.filterOrder, true);
    if (!warning.isEmpty())
        console::errLine(warning.value(u"title"_s).toString() + u": "_s +
                         warning.value(u"message"_s).toString());
    settleSize();
}

// A preset adds a second filter of a category that Autopilot has put on: overrides are for both.
QStringList SettingsMerge::filtersOf(const QString &category) const {
    const QVariantMap controls = m_controls.currentControls();
    QStringList names;
    for (const auto &[name, filter] : controls.asKeyValueRange()) {
        if (filter.toMap().value(Keys::Category) == category)
            names.append(name);
    }
    return names;
}

void SettingsMerge::applyOverrides(const QVariantMap &autopilot) {
    for (const QString &category : m_categories) {
        const QStringList texts = m_options.overrides.values(category);
        if (texts.isEmpty())
            continue;
        if (!hasPreset() || filtersOf(category).isEmpty())
            initialize(category, autopilot.value(category).toMap());
        QList<Override> overrides;
        for (const QString &text : texts)
            overrides.append(parseOverride(text));
        for (const QString &filterName : filtersOf(category)) {
            if (m_options.overrideAutopilot)
                m_controls.setParam(filterName, Keys::Enabled, true);
            for (const Override &setting : std::as_const(overrides))
                applyOverride(filterName, setting);
        }
        if (category == Categories::Enhance && asksForSize(overrides))
            settleSize();
        report(category, overrides);
    }
}

void SettingsMerge::applyOverride(const QString &filterName, const Override &setting) {
    const auto &[key, value] = setting;
    console::outLine(u"Overwriting "_s + filterName + u' ' + key + u" to "_s + value);
    qInfo() << "[CLI] Set" << filterName << key << "=" << value;
    if (key == Keys::Model)
        m_controls.setModel(filterName, value);
    else
        m_controls.setParam(filterName, key, QVariant(value));
}

QVariantMap SettingsMerge::filterOf(const QString &category) const {
    return m_controls.currentControls().value(category).toMap();
}

bool SettingsMerge::asksForSize(const QList<Override> &overrides) const {
    const QString mode = sizeMode();
    return std::any_of(overrides.cbegin(), overrides.cend(), [&mode](const Override &setting) {
        return setting.first == Params::Mode || setting.first == mode;
    });
}

QString SettingsMerge::sizeMode() const {
    return filterOf(Categories::Enhance).value(Keys::Params).toMap().value(Params::Mode).toString();
}

// To the engine, a scale that contradicts the width means that the picture is cropped, which a batch run
// doesn't do: what Autopilot worked out for another size goes.
void SettingsMerge::settleSize() {
    const QString mode = sizeMode();
    if (mode == Params::Width || mode == Params::Height)
        m_controls.removeKeyFromControlParams(Categories::Enhance, Params::Scale);
}

void SettingsMerge::report(const QString &category, const QList<Override> &overrides) {
    const QVariantMap catalogue = m_controls.modelParamInfo();
    if (catalogue.isEmpty())
        return;
    const QStringList problems =
        overrideProblems(category, filterOf(category), catalogue.value(category).toMap(), overrides);
    for (const QString &problem : problems) {
        console::errLine(problem);
        qInfo().noquote() << "[CLI]" << problem; // a warning would be echoed as a second line
    }
}

void SettingsMerge::setOrder() {
    const QVariantMap present = m_controls.currentControls();
    QStringList order = hasPreset() ? m_controls.filterOrder() : QStringList();
    for (const QString &category : m_filterOrder) {
        if (present.contains(category) && !order.contains(category))
            order.append(category);
    }
    m_controls.setFilterOrder(hasPreset() ? m_controls.normalisedOrder(order) : order, QString());
}
