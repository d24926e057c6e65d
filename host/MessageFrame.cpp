#include "host/MessageFrame.h"

#include <QtEndian>

namespace messageFrame {

QByteArray pack(const QByteArray &message) {
    if (message.size() > MaxMessage)
        return {};
    QByteArray frame(4, Qt::Uninitialized);
    qToBigEndian(quint32(message.size()), frame.data());
    return frame + message;
}

Take takeFrom(QByteArray &buffer) {
    Take result;
    if (buffer.size() < 4)
        return result;
    const auto length = qFromBigEndian<quint32>(buffer.constData());
    if (length > MaxMessage) {
        result.broken = true;
    } else if (buffer.size() - 4 >= qsizetype(length)) {
        result.message = buffer.mid(4, length);
        buffer.remove(0, 4 + qsizetype(length));
    }
    return result;
}

} // namespace messageFrame
