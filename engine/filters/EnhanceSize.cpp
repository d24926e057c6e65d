#include "engine/filters/EnhanceSize.h"

#include "contracts/FilterNames.h"

namespace {

constexpr double MinScale = 0.2;
constexpr double MaxScale = 6;
constexpr double MaxSide = 32000;

double fixedSideScale(double wanted, double side, const std::optional<double> &scale) {
    // Settings that nobody changed hold a scale of exactly 1.
    const bool cropExplains = scale && *scale != 1 && wanted / *scale < side - 0.5;
    return cropExplains ? *scale : wanted / side;
}

} // namespace

double enhanceScale(const FilterValues &values, const QSize &input, RunLog &log) {
    const QString mode = values.text(Params::Mode);
    if (!mode.isEmpty() && !Params::sizeModes().contains(mode))
        log.note(QStringLiteral("Enhance: there is no mode \"%1\", the scale is used").arg(mode));
    const auto scale = values.size(Params::Scale);
    double wanted = scale.value_or(1);
    for (const auto &[name, side] :
         {std::pair{Params::Width, input.width()}, std::pair{Params::Height, input.height()}}) {
        if (mode != name)
            continue;
        if (const auto size = values.size(name))
            wanted = fixedSideScale(*size, side, scale);
        else
            log.note(QStringLiteral("Enhance: no %1 is given, the scale %2 is used").arg(name).arg(wanted));
    }
    const double longest = std::max(input.width(), input.height());
    const double limited = std::clamp(wanted, MinScale, std::clamp(MaxSide / longest, MinScale, MaxScale));
    if (limited != wanted)
        log.note(
            QStringLiteral("Enhance: a scale of %1 is out of range, %2 is used").arg(wanted).arg(limited));
    return limited;
}
