#include "presets/TFormat.h"

#include <QDoubleValidator>
#include <QLocale>

#include <cmath>

QString TFormat::formatMemoryString(float bytes, int numDecimals) const {
    const QLocale locale;
    const double value = bytes;
    if (bytes == 0)
        return QStringLiteral("0B");
    if (bytes < 1000)
        return locale.toString(qRound(bytes)) + QLatin1Char('B');
    if (bytes < 1'000'000)
        return locale.toString(value / 1000, 'f', numDecimals) + QStringLiteral("KB");
    if (bytes < 1'000'000'000)
        return locale.toString(value / 1'000'000, 'f', numDecimals) + QStringLiteral("MB");
    return locale.toString(float(value / 1'000'000'000), 'f', numDecimals) + QStringLiteral("GB");
}

QString TFormat::format(double number, double bottom, double top, int decimals) const {
    const QLocale locale;
    QString text = locale.toString(number, 'g', 6);
    QDoubleValidator validator(bottom, top, decimals);
    validator.setNotation(QDoubleValidator::StandardNotation);
    validator.setLocale(locale);
    validator.fixup(text);
    // The validator leaves a text with an exponent alone; a field wants plain digits.
    if (text.contains(locale.exponential(), Qt::CaseInsensitive)) {
        const double unit = std::pow(10.0, decimals);
        text = locale.toString(std::round(number * unit) / unit, 'f', QLocale::FloatingPointShortest);
    }
    return text;
}

QString TFormat::list(QStringList list, const QString &lastJoiner) const {
    if (list.size() >= 2)
        list.last().prepend(lastJoiner);
    return list.join(list.size() >= 3 ? QStringLiteral(", ") : QStringLiteral(" "));
}
