#pragma once

#include <QObject>
#include <QVariantMap>
#include <QtQmlIntegration/qqmlintegration.h>

#include <functional>

/// Usage events. Keeps nothing and sends nothing: an event goes to the sink, and only while tracking is
/// enabled and a sink was handed in.
class TEventTracker : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool enabled READ enabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool isDev READ isDev WRITE setDev NOTIFY isDevChanged)
    Q_PROPERTY(QString machineId READ machineId WRITE setMachineId NOTIFY machineIdChanged)

public:
    struct Event {
        QString name;
        QVariantMap properties;
        QString machineId;
        bool isDev = false;
    };
    using Sink = std::function<void(const Event &)>;

    using QObject::QObject;

    /// Where the events of all trackers go. Set at start, if at all, by the composition root.
    static void setSink(Sink sink);

    bool enabled() const { return m_enabled; }
    Q_INVOKABLE void setEnabled(bool enabled);
    bool isDev() const { return m_isDev; }
    Q_INVOKABLE void setDev(bool isDev);
    QString machineId() const { return m_machineId; }
    Q_INVOKABLE void setMachineId(const QString &machineId);

    Q_INVOKABLE void track(const QString &name, const QVariantMap &properties = {}) const;

Q_SIGNALS:
    void enabledChanged();
    void isDevChanged();
    void machineIdChanged();

private:
    bool m_enabled = false;
    bool m_isDev = false;
    QString m_machineId;
};
