#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QVariant>

// Writes a property as the toolkit's own controls do when the user acts: a binding on it stays in
// force. An assignment in a document would remove it, and a slider bound to a model would stop
// following the model after its first reset.
class PbBoundProperty : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    // Warns and does nothing when `target` is null or has no such writable property.
    Q_INVOKABLE void write(QObject *target, const QString &property, const QVariant &value) const;
};
