#include "host/TIntercom.h"

#include "host/MessageFrame.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QThread>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int WaitForVerdictMs = 15000;
constexpr int TakeOverIntervalMs = 3000;
constexpr int MaxConnections = 64;

const QByteArray ReceiptAnswer = "received";
const QByteArray EndAnswer = "end";
const QByteArray ContinueAnswer = "continue";

QString runtimeDirectory() {
    QString path = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (path.isEmpty())
        path = QDir::tempPath();
    return path;
}

/// Reads one framed answer or gives up at the deadline.
QByteArray awaitAnswer(QLocalSocket &socket, QByteArray &buffer, const QDeadlineTimer &deadline) {
    for (;;) {
        const auto taken = messageFrame::takeFrom(buffer);
        if (taken.message)
            return *taken.message;
        if (taken.broken || deadline.hasExpired() || !socket.waitForReadyRead(int(deadline.remainingTime())))
            return {};
        buffer += socket.readAll();
    }
}

} // namespace

TIntercom::TIntercom(QCoreApplication *application, QObject *parent)
    : TIntercom(application, runtimeDirectory(), parent) {
}

TIntercom::TIntercom(QCoreApplication *application, const QString &directory, QObject *parent)
    : QObject(parent)
    , m_application(application)
    , m_directory(directory)
    , m_lock(directory, u"orvane-studio"_s) {
    start();
}

TIntercom::~TIntercom() {
    m_server.close();
}

void TIntercom::start() {
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.setMaxPendingConnections(MaxConnections);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *socket = m_server.nextPendingConnection()) {
            connect(socket, &QLocalSocket::readyRead, this, [this, socket] { readFrom(socket); });
            connect(socket, &QLocalSocket::disconnected, this, [this, socket] {
                m_buffers.remove(socket);
                socket->deleteLater();
            });
            readFrom(socket);
        }
    });
    m_takeOverTimer.setInterval(TakeOverIntervalMs);
    connect(&m_takeOverTimer, &QTimer::timeout, this, &TIntercom::takeOver);

    if (m_lock.tryBecomeServer())
        listen();
    else
        m_takeOverTimer.start();
}

void TIntercom::listen() {
    // The name is a path of the user's own folder: other users can neither see nor take it.
    const QString name = m_directory + u"/orvane-studio.socket"_s;
    QLocalServer::removeServer(name);
    if (!m_server.listen(name))
        qWarning() << "Could not listen for further instances:" << m_server.errorString();
}

void TIntercom::takeOver() {
    if (!m_lock.tryBecomeServer())
        return;
    m_takeOverTimer.stop();
    listen();
    Q_EMIT isServerChanged();
}

bool TIntercom::send(const QString &message, int timeoutMs) {
    if (isServer())
        return false;
    const QByteArray frame = messageFrame::pack(message.toUtf8());
    if (frame.isEmpty())
        return false;
    const QDeadlineTimer deadline(timeoutMs);
    // A server in the same second may hold the lock and not listen yet.
    do {
        m_client.connectToServer(m_directory + u"/orvane-studio.socket"_s);
        if (m_client.waitForConnected(int(qMin<qint64>(500, deadline.remainingTime()))))
            break;
        m_client.abort();
        QThread::msleep(50);
    } while (!deadline.hasExpired());
    if (m_client.state() != QLocalSocket::ConnectedState)
        return false;
    m_client.write(frame);
    while (m_client.bytesToWrite() > 0) {
        if (deadline.hasExpired() || !m_client.waitForBytesWritten(int(deadline.remainingTime())))
            return false;
    }
    return awaitAnswer(m_client, m_received, deadline) == ReceiptAnswer;
}

bool TIntercom::waitForContinue() {
    if (m_client.state() != QLocalSocket::ConnectedState && m_received.isEmpty())
        return true;
    const QDeadlineTimer deadline(WaitForVerdictMs);
    QByteArray verdict = awaitAnswer(m_client, m_received, deadline);
    // A server that was busy acknowledges later than send() waits for it.
    if (verdict == ReceiptAnswer)
        verdict = awaitAnswer(m_client, m_received, deadline);
    m_client.disconnectFromServer();
    return verdict != EndAnswer;
}

void TIntercom::readFrom(QLocalSocket *socket) {
    // Answering can find the other end gone, which forgets the socket's buffer: it is worked on here.
    QByteArray buffer = m_buffers.take(socket) + socket->readAll();
    for (;;) {
        const auto taken = messageFrame::takeFrom(buffer);
        if (taken.broken) {
            qWarning() << "Dropped a message of another instance that is longer than allowed";
            socket->abort();
            return;
        }
        if (!taken.message)
            break;
        socket->write(messageFrame::pack(ReceiptAnswer));
        socket->write(messageFrame::pack(answerTo(*taken.message)));
        socket->flush();
    }
    if (!buffer.isEmpty() && socket->state() == QLocalSocket::ConnectedState)
        m_buffers.insert(socket, buffer);
}

QByteArray TIntercom::answerTo(const QByteArray &message) {
    const QString text = QString::fromUtf8(message);
    const QString head = u"plugin:"_s + m_key + u"::"_s;
    if (m_key.isEmpty() || !text.startsWith(head)) {
        qInfo() << "Another instance goes on by itself: its message is not for this one";
        return ContinueAnswer;
    }
    raiseToFront();
    Q_EMIT mergeInstance(text.mid(head.size()));
    return EndAnswer;
}

void TIntercom::setExternalEditor(const QString &key) {
    m_key = key;
}

void TIntercom::raiseToFront() {
    if (!qobject_cast<QGuiApplication *>(m_application.data()))
        return;
    const auto windows = QGuiApplication::topLevelWindows();
    for (QWindow *window : windows) {
        if (!window->isVisible())
            continue;
        if (window->windowStates() & Qt::WindowMinimized)
            window->showNormal();
        window->raise();
        window->requestActivate();
    }
}
