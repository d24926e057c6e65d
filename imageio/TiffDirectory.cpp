#include "imageio/TiffDirectory.h"

#include <algorithm>

namespace imageio {

namespace {

constexpr std::uint64_t MaxParts = 4'000'000; ///< strips or tiles
constexpr int UnknownTag = 65111;

} // namespace

TiffDirectory::TiffDirectory(ByteSource &source, qint64 begin)
    : m_source(source)
    , m_big(source.u8(0) == 'M')
    , m_wide(number(2, 2) == 43)
    , m_offsetBytes(m_wide ? 8 : 4) {
    m_begin = begin > 0 ? begin : qint64(number(m_wide ? 8 : 4, m_offsetBytes));
    m_count = qint64(number(m_begin, m_wide ? 8 : 2));
}

qint64 TiffDirectory::find(int wanted) {
    for (qint64 i = 0; i < m_count; ++i) {
        if (tag(i) == wanted)
            return i;
    }
    return -1;
}

qint64 TiffDirectory::value(qint64 i, std::uint64_t k) {
    const int bytes = i < 0 ? 0 : typeBytes(i);
    if (bytes == 0 || k >= values(i))
        return 0;
    const bool fits = values(i) <= std::uint64_t(m_offsetBytes / bytes);
    const qint64 at = fits ? inlineValue(i) : qint64(number(inlineValue(i), m_offsetBytes));
    return qint64(number(at + qint64(k) * bytes, bytes));
}

QByteArray TiffDirectory::bytes(qint64 i) {
    QByteArray all(qsizetype(values(i)), Qt::Uninitialized);
    const bool fits = all.size() <= m_offsetBytes;
    const qint64 at = fits ? inlineValue(i) : qint64(number(inlineValue(i), m_offsetBytes));
    const bool read =
        m_source.read(at, {reinterpret_cast<std::uint8_t *>(all.data()), std::size_t(all.size())});
    return read ? all : QByteArray();
}

int TiffDirectory::typeBytes(qint64 i) {
    switch (number(entry(i) + 2, 2)) {
    case 1:
    case 2:
    case 7:
        return 1;
    case 3:
        return 2;
    case 4:
    case 13:
        return 4;
    case 16:
    case 18:
        return 8;
    default:
        return 0;
    }
}

FileMask TiffDirectory::hidden(qint64 i) const {
    const char low = char(UnknownTag & 0xff);
    const char high = char(UnknownTag >> 8);
    const char tag[] = {m_big ? high : low, m_big ? low : high};
    return {entry(i), QByteArray(tag, 2)};
}

bool TiffDirectory::dataLiesWithin() {
    const qint64 strips = find(StripOffsets);
    const qint64 offsets = strips < 0 ? find(TileOffsets) : strips;
    const qint64 stripBytes = find(StripBytes);
    const qint64 lengths = stripBytes < 0 ? find(TileBytes) : stripBytes;
    if (offsets < 0 || lengths < 0)
        return false;
    const std::uint64_t count = std::min(values(offsets), values(lengths));
    if (count > MaxParts)
        return false;
    for (std::uint64_t k = 0; k < count; ++k) {
        const qint64 begin = value(offsets, k);
        const qint64 length = value(lengths, k);
        if (begin < 0 || length < 0 || begin > m_source.size() || length > m_source.size() - begin)
            return false;
    }
    return !m_source.overran();
}

} // namespace imageio
