#include "contracts/FilterNames.h"
#include "frontends/TImageUtils.h"
#include "model/ApplyOverrides.h"
#include "model/TControls.h"

#include <QDebug>

using namespace Qt::StringLiterals;

void TControls::setControls(qint64 index, const QVariantMap &controls, bool forceChanged) {
    if (!m_loadedImages.holdsIndex(index)) {
        qCritical() << "Attempting to set controls of an invalid index:" << m_loadedImages.size()
                    << "images loaded, but using index of" << index;
        return;
    }
    const QString path = pathAt(index);
    const auto settings = m_imageSettings.find(path);
    if (settings == m_imageSettings.end()) {
        qCritical() << "Attempting to set controls for an invalid file:" << path;
        return;
    }
    const bool changed = settings->mergeControls(controls) || forceChanged;
    TImageSettings::AutoPilotStatus status = changed ? TImageSettings::Processing : TImageSettings::On;
    if (controls.value(Keys::AutoPilot) == QVariant(0))
        status = TImageSettings::Off;
    if (!settings->setAutoPilotStatus(status) && !changed)
        return;
    if (index == m_currentIndex)
        emitCurrentImageSignals();
}

bool TControls::applyCurrentControlsToImage(const QString &imagePath, bool allowEmit) {
    if (imagePath.isEmpty())
        return false;
    // Both as they were before: the target's faces and RAW filter decide something here and must be read
    // before its filters go, and the current image may be the target itself.
    const TImageSettings source = std::as_const(*this).currentSettings();
    TImageSettings &target = settingsOf(imagePath);
    const ApplyOverrides overrides = applyOverrides(source, target);
    const bool targetIsRaw = TImageUtils::isRawFile(imagePath);

    QStringList order;
    const QStringList names = target.filterControls.keys();
    for (const QString &name : names) {
        if (!isRaw() && name == Categories::Raw)
            order.append(name);
        else
            target.removeFilter(name);
    }
    if (!isRaw() && targetIsRaw && !order.contains(Categories::Raw))
        order.append(Categories::Raw);

    bool changed = false;
    for (const QString &name : source.filterOrder) {
        if (name == Categories::Raw && (!targetIsRaw || target.filter(name).model == Models::LinearRaw))
            continue;
        changed |= target.mergeFilter(name, adjustedFilter(source, name, overrides));
        if (changed && !order.contains(name))
            order.append(name);
    }
    if (!changed)
        return false;
    target.initialFiltersApplied = true;
    if (allowEmit) {
        setFilterOrder(order, imagePath);
        propagateControlChanges();
    }
    return true;
}

bool TControls::doCurrentControlsMatchImage(const QString &imagePath) const {
    if (imagePath.isEmpty())
        return true;
    const TImageSettings source = currentSettings();
    const TImageSettings target = settingsOf(imagePath);
    if (source.filterOrder != target.filterOrder)
        return false;
    const ApplyOverrides overrides = applyOverrides(source, target);
    return std::all_of(target.filterOrder.cbegin(), target.filterOrder.cend(), [&](const QString &name) {
        return target.filter(name).matches(adjustedFilter(source, name, overrides));
    });
}
