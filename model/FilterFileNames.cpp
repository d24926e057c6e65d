#include "contracts/FilterNames.h"
#include "model/TImageSettings.h"

using namespace Qt::StringLiterals;

namespace {

bool hasRemoval(const QVariantMap &params) {
    const QVariantMap::const_iterator first = params.lowerBound(u"apply"_s);
    return first != params.cend() && first.key().startsWith("apply"_L1);
}

QString sizeSuffix(const QVariantMap &params) {
    const QString mode = params.value(Params::Mode).toString();
    if (mode == Params::Scale)
        return u'-' + QString::number(params.value(mode).toDouble(), 'g', 2) + u'x';
    if (mode == Params::Width)
        return u'-' + QString::number(params.value(mode).toInt()) + u'w';
    if (mode == Params::Height)
        return u'-' + QString::number(params.value(mode).toInt()) + u'h';
    return {};
}

QString suffixOf(const QString &name, const QVariantMap &params) {
    if (name.contains(Categories::Denoise))
        return u"denoise"_s;
    if (name == Categories::Enhance)
        return u"enhance"_s + sizeSuffix(params);
    if (name.contains(Categories::Sharpen))
        return u"sharpen"_s;
    if (name.contains(Categories::FaceRecovery))
        return u"faceai"_s;
    if (name == Categories::Raw)
        return u"denoiseraw"_s;
    if (name.contains(Categories::TextRecovery))
        return u"textai"_s;
    if (name.contains(Categories::WhiteBalance))
        return u"color"_s;
    if (name.contains(Categories::Exposure))
        return u"exposure"_s;
    return {};
}

} // namespace

QString TImageSettings::filterNamesForFilename() const {
    QString names;
    for (const QString &name : filterOrder) {
        const auto found = filterControls.constFind(name);
        if (found == filterControls.cend() || !found->enabled)
            continue;
        if (name.contains(Categories::Inpaint) && hasRemoval(found->params))
            names += "-remove"_L1;
        // The hyphen stands for every active filter, also for one without a suffix: the string says
        // whether any filter is active.
        names += u'-' + suffixOf(name, found->params);
    }
    return names;
}
