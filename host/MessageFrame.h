#pragma once

#include <QByteArray>
#include <optional>

/// One message on the wire: four bytes of length, most significant first, then that many bytes of
/// UTF-8. Longer than MaxMessage is refused on both sides.
namespace messageFrame {

inline constexpr qsizetype MaxMessage = 16 * 1024 * 1024;

/// Empty when the message is too long.
QByteArray pack(const QByteArray &message);

/// Outcome of looking at the front of received bytes.
struct Take {
    bool broken = false;               ///< a length over the limit: drop the connection
    std::optional<QByteArray> message; ///< removed from the front of the buffer when complete
};
Take takeFrom(QByteArray &buffer);

} // namespace messageFrame
