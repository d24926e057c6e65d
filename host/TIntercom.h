#pragma once

#include "host/InstanceLock.h"

#include <QHash>
#include <QLocalServer>
#include <QLocalSocket>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QtQmlIntegration/qqmlintegration.h>

class QCoreApplication;

/// The channel between a user's instances. The first instance serves; a later one sends it a message
/// and asks whether to go on. An instance that went on takes over when the server has gone.
class TIntercom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Cannot create TIntercom from QML")
    Q_PROPERTY(bool isServer READ isServer NOTIFY isServerChanged)
public:
    explicit TIntercom(QCoreApplication *application, QObject *parent = nullptr);
    /// `directory` for lock and socket; the other constructor takes the user's runtime directory.
    TIntercom(QCoreApplication *application, const QString &directory, QObject *parent);
    ~TIntercom() override;

    bool isServer() const { return m_lock.isHeld(); }

    /// Sends to the server and waits for its receipt, `timeoutMs` at most. False when there is no
    /// server, it does not answer in time, or this process is the server itself.
    bool send(const QString &message, int timeoutMs);

    /// False when the server took over what was sent and this process is to end. True when it is to go
    /// on as a window: the server refused, is gone, or does not answer.
    bool waitForContinue();

    /// The key that messages must carry to be taken: "plugin:" key "::" data.
    Q_INVOKABLE
    void setExternalEditor(const QString &key);

    /// Brings this process's windows before the user.
    Q_INVOKABLE
    void raiseToFront();

Q_SIGNALS:
    void isServerChanged();
    /// A message of another instance: what follows the key.
    void mergeInstance(const QString &data);

private:
    void start();
    void listen();
    void readFrom(QLocalSocket *socket);
    QByteArray answerTo(const QByteArray &message);
    void takeOver();

    QPointer<QCoreApplication> m_application;
    QString m_directory;
    InstanceLock m_lock;
    QLocalServer m_server;
    QLocalSocket m_client;
    QByteArray m_received;
    QHash<QLocalSocket *, QByteArray> m_buffers;
    QString m_key;
    QTimer m_takeOverTimer;
};
