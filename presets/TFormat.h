#pragma once

#include <QObject>
#include <QStringList>
#include <QtQmlIntegration/qqmlintegration.h>

/// Values as text, in the user's locale. Stateless.
class TFormat : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Cannot create TFormat from QML")
public:
    using QObject::QObject;

    /// Decimal units (1000), the unit chosen before any rounding: 1500000 gives "1.5MB".
    Q_INVOKABLE
    QString formatMemoryString(float bytes, int numDecimals = 1) const;

    /// The number in plain digits, made acceptable for a field from bottom to top with so many decimals.
    Q_INVOKABLE
    QString format(double number, double bottom, double top, int decimals = 2) const;

    /// "a", "a or b", "a, b, or c". The joiner carries its own blank.
    Q_INVOKABLE
    QString list(QStringList list, const QString &lastJoiner = QStringLiteral("or ")) const;
};
