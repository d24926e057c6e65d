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
    applyAutopilot(autopilot);
    applyOverrides(autopilot);
    setOrder();
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

void SettingsMerge::applyOverrides(const QVariantMap &autopilot) {
    for (const QString &category : m_categories) {
        const QStringList texts = m_options.overrides.values(category);
        if (texts.isEmpty())
            continue;
        initialize(category, autopilot.value(category).toMap());
        if (m_options.overrideAutopilot)
            m_controls.setParam(category, Keys::Enabled, true);
        QList<Override> overrides;
        for (const QString &text : texts)
            overrides.append(parseOverride(text));
        for (const Override &setting : std::as_const(overrides))
            applyOverride(category, setting);
        if (category == Categories::Enhance)
            settleSize(overrides);
        report(category, overrides);
    }
}

void SettingsMerge::applyOverride(const QString &category, const Override &setting) {
    const auto &[key, value] = setting;
    console::outLine(u"Overwriting "_s + category + u' ' + key + u" to "_s + value);
    qInfo() << "[CLI] Set" << category << key << "=" << value;
    if (key == Keys::Model)
        m_controls.setModel(category, value);
    else
        m_controls.setParam(category, key, QVariant(value));
}

QVariantMap SettingsMerge::filterOf(const QString &category) const {
    return m_controls.currentControls().value(category).toMap();
}

// To the engine, a scale that contradicts the width means that the picture is cropped, which a batch run
// doesn't do: what Autopilot worked out for another size goes.
void SettingsMerge::settleSize(const QList<Override> &overrides) {
    const QString mode =
        filterOf(Categories::Enhance).value(Keys::Params).toMap().value(Params::Mode).toString();
    const bool isAsked = std::any_of(overrides.cbegin(), overrides.cend(), [&](const Override &setting) {
        return setting.first == Params::Mode || setting.first == mode;
    });
    if (isAsked && (mode == Params::Width || mode == Params::Height))
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
    QStringList order;
    for (const QString &category : m_filterOrder) {
        if (present.contains(category))
            order.append(category);
    }
    m_controls.setFilterOrder(order, QString());
    qInfo() << "[CLI] Current filter order:" << m_controls.filterOrder();
}
