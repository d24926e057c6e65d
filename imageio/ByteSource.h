#pragma once

#include <QFile>
#include <QString>

#include <cstdint>
#include <span>
#include <string_view>

namespace imageio {

/// Bounded random reads of a file, for looking at headers before any decoder does. A read outside
/// the file answers zero and sets a mark, so that a probe can test once at its end.
class ByteSource {
public:
    /// A sentence naming the reason when the path can't be read as a picture file, else empty.
    QString open(const QString &path);

    qint64 size() const { return m_size; }
    bool overran() const { return m_overran; }

    bool read(qint64 offset, std::span<std::uint8_t> to);
    bool startsWith(qint64 offset, std::string_view bytes);
    std::uint8_t u8(qint64 offset) { return std::uint8_t(number(offset, 1, true)); }
    std::uint64_t bigEndian(qint64 offset, int bytes) { return number(offset, bytes, true); }
    std::uint64_t littleEndian(qint64 offset, int bytes) { return number(offset, bytes, false); }

private:
    std::uint64_t number(qint64 offset, int bytes, bool big);

    QFile m_file;
    qint64 m_size = 0;
    bool m_overran = false;
};

} // namespace imageio
