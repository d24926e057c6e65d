#include "contracts/FilterNames.h"
#include "model/TControls.h"

using namespace Qt::StringLiterals;

void TControls::setDefaultSubjectType(const QString &type) {
    m_defaultSubjectType = type;
}

QVariantMap TControls::getSubjectSettings(const QString &filterName) const {
    return currentSettings().filter(filterName).subjectSettings;
}

void TControls::setSubjectSettings(const QString &filterName, const QVariantMap &settings) {
    if (!currentSettings().setSubjectSettings(filterName, settings))
        return;
    Q_EMIT subjectSettingsChanged(getSubjectSettings(filterName));
    Q_EMIT currentControlsChanged();
}

void TControls::initializeSubject(const QString &category) {
    // Substrings, so that numbered filters are caught.
    const bool wholeImage = category.contains(Categories::Denoise) ||
                            category.contains(Categories::Exposure) ||
                            category.contains(Categories::WhiteBalance);
    currentSettings().resetSubject(category, wholeImage ? u"All"_s : m_defaultSubjectType);
}

bool TControls::isSubjectModified(const QString &imageUrl) const {
    if (!m_loadedImages.contains(imageUrl))
        return false;
    // The top level of a controls map holds no subject, so that no image counts as yet.
    const QVariantMap subject = settingsOf(imageUrl).toMap().value(Keys::SubjectSettings).toMap();
    return !subject.value(Params::Strokes).toList().isEmpty();
}
