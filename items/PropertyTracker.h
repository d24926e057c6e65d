#pragma once

#include <QObject>
#include <QVariant>
#include <QtQmlIntegration/qqmlintegration.h>

/// One of several views of a shared value. `value` is what this view shows; while it leads, the linker
/// hands its changes to the others, which get them through `update`. Becomes leader by itself when
/// `activateOn` turns true.
class PropertyTracker : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QObject *target READ target WRITE setTarget NOTIFY targetChanged)
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(bool activateOn READ activateOn WRITE setActivateOn NOTIFY activateOnChanged)
public:
    using QObject::QObject;

    QString name() const { return m_name; }
    void setName(const QString &name);
    QObject *target() const { return m_target; }
    void setTarget(QObject *target);
    QVariant value() const { return m_value; }
    void setValue(const QVariant &value);
    bool activateOn() const { return m_activateOn; }
    void setActivateOn(bool on);

Q_SIGNALS:
    void nameChanged();
    void targetChanged();
    void valueChanged();
    void activateOnChanged();
    /// The leader's value; a follower applies it.
    void update(const QVariant &value);

private:
    QString m_name;
    QObject *m_target = nullptr;
    QVariant m_value;
    bool m_activateOn = false;
};
