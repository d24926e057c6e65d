#include "cli/SettingsMerge.h"

#include "cli/Console.h"
#include "model/TControls.h"

#include <QDebug>

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
        for (const QString &text : texts)
            applyOverride(category, text);
    }
}

void SettingsMerge::applyOverride(const QString &category, const QString &text) {
    const QStringList parts = text.split(u'=', Qt::SkipEmptyParts);
    const QString key = parts.value(0);
    const QString value = parts.value(1);
    console::outLine(u"Overwriting "_s + category + u' ' + key + u" to "_s + value);
    qInfo() << "[CLI] Set" << category << key << "=" << value;
    if (key == Keys::Model)
        m_controls.setModel(category, value);
    else
        m_controls.setParam(category, key, QVariant(value));
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
