#include "imageio/DecodeLimits.h"
#include "imageio/FileProbe.h"

#include <algorithm>

namespace imageio {

namespace {

constexpr std::uint64_t MaxParts = 4'000'000; ///< strips or tiles

enum Tag {
    Width = 256,
    Height = 257,
    Bits = 258,
    Compression = 259,
    Photometric = 262,
    StripOffsets = 273,
    Samples = 277,
    StripBytes = 279,
    TileOffsets = 324,
    TileBytes = 325,
    InkSet = 332,
    Iptc = 33723,
    Photoshop = 34377,
    Exif = 34665,
    Icc = 34675,
    Gps = 34853,
    Xmp = 700,
    DngVersion = 50706,
};
constexpr int UnknownTag = 65111;

/// Reads entries of the first directory, in either byte order and either file size variant.
class Directory {
public:
    explicit Directory(ByteSource &source)
        : m_source(source)
        , m_big(source.u8(0) == 'M')
        , m_wide(number(2, 2) == 43)
        , m_offsetBytes(m_wide ? 8 : 4) {
        m_begin = qint64(number(m_wide ? 8 : 4, m_offsetBytes));
        m_count = qint64(number(m_begin, m_wide ? 8 : 2));
    }

    qint64 count() const { return m_count; }
    int tag(qint64 i) { return int(number(entry(i), 2)); }
    /// Value k of entry i when they are unsigned numbers, else 0.
    qint64 value(qint64 i, std::uint64_t k = 0) {
        const int bytes = typeBytes(i);
        if (bytes == 0 || k >= values(i))
            return 0;
        const qint64 inlineAt = entry(i) + (m_wide ? 12 : 8);
        const bool fits = values(i) <= std::uint64_t(m_offsetBytes / bytes);
        const qint64 at = fits ? inlineAt : qint64(number(inlineAt, m_offsetBytes));
        return qint64(number(at + qint64(k) * bytes, bytes));
    }
    std::uint64_t values(qint64 i) { return number(entry(i) + 4, m_offsetBytes); }
    /// The bytes of entry i, which must be of a type of one byte.
    QByteArray bytes(qint64 i) {
        QByteArray all(qsizetype(values(i)), Qt::Uninitialized);
        const qint64 inlineAt = entry(i) + (m_wide ? 12 : 8);
        const qint64 at = all.size() <= m_offsetBytes ? inlineAt : qint64(number(inlineAt, m_offsetBytes));
        const bool read =
            m_source.read(at, {reinterpret_cast<std::uint8_t *>(all.data()), std::size_t(all.size())});
        return read ? all : QByteArray();
    }
    /// Gives entry i a tag that decoders pass over.
    FileMask hidden(qint64 i) const {
        const char low = char(UnknownTag & 0xff);
        const char high = char(UnknownTag >> 8);
        const char tag[] = {m_big ? high : low, m_big ? low : high};
        return {entry(i), QByteArray(tag, 2)};
    }
    int typeBytes(qint64 i) {
        switch (number(entry(i) + 2, 2)) {
        case 1:
        case 2:
        case 7:
            return 1;
        case 3:
            return 2;
        case 4:
            return 4;
        case 16:
            return 8;
        default:
            return 0;
        }
    }

private:
    std::uint64_t number(qint64 at, int bytes) {
        return m_big ? m_source.bigEndian(at, bytes) : m_source.littleEndian(at, bytes);
    }
    qint64 entry(qint64 i) const { return m_begin + (m_wide ? 8 + i * 20 : 2 + i * 12); }

    ByteSource &m_source;
    bool m_big;
    bool m_wide;
    int m_offsetBytes;
    qint64 m_begin = 0;
    qint64 m_count = 0;
};

/// True when every strip or tile lies within the file. Decoders fill in what lies beyond.
bool dataLiesWithin(ByteSource &source, Directory &directory, qint64 offsets, qint64 lengths) {
    if (offsets < 0 || lengths < 0)
        return false;
    const std::uint64_t count = std::min(directory.values(offsets), directory.values(lengths));
    if (count > MaxParts)
        return false;
    for (std::uint64_t k = 0; k < count; ++k) {
        const qint64 begin = directory.value(offsets, k);
        const qint64 length = directory.value(lengths, k);
        if (begin < 0 || length < 0 || begin > source.size() || length > source.size() - begin)
            return false;
    }
    return !source.overran();
}

/// Uncompressed bytes that one byte of the file can stand for, by compression scheme; 0 unknown.
double expansion(qint64 compression) {
    switch (compression) {
    case 1:
        return 1.01;
    case 5:
        return 1366; // longest string of a 12-bit code
    case 8:
    case 32946:
        return 1032;
    case 32773:
        return 64;
    default:
        return 0;
    }
}

} // namespace

void probeTiff(ByteSource &source, FileFacts &facts) {
    Directory directory(source);
    if (source.overran()) {
        facts.error = limits::endsTooEarly();
        return;
    }
    if (directory.count() < 1 || directory.count() > 4096) {
        facts.error = limits::damagedHeader(facts.kind);
        return;
    }
    facts.channels = 1;
    facts.bits = 1;
    qint64 compression = 1;
    qint64 photometric = 0;
    qint64 inks = 1;
    qint64 offsets = -1;
    qint64 lengths = -1;
    for (qint64 i = 0; i < directory.count(); ++i) {
        const int bytes = directory.typeBytes(i);
        if (bytes > 0 && directory.values(i) > std::uint64_t(source.size() / bytes)) {
            facts.error = limits::damagedHeader(facts.kind);
            return;
        }
        if (bytes == 1 && qint64(directory.values(i)) > limits::MaxMetadataBytes) {
            facts.error = limits::metadataTooLarge();
            return;
        }
        switch (directory.tag(i)) {
        case Width:
            facts.width = directory.value(i);
            break;
        case Height:
            facts.height = directory.value(i);
            break;
        case Bits:
            facts.bits = int(directory.value(i));
            break;
        case Compression:
            compression = directory.value(i);
            break;
        case Photometric:
            photometric = directory.value(i);
            break;
        case Samples:
            facts.channels = int(directory.value(i));
            break;
        case InkSet:
            inks = directory.value(i);
            break;
        case StripOffsets:
        case TileOffsets:
            offsets = i;
            break;
        case StripBytes:
        case TileBytes:
            lengths = i;
            break;
        case Icc:
            facts.icc = bytes == 1 ? directory.bytes(i) : QByteArray();
            facts.masks.push_back(directory.hidden(i));
            break;
        case Iptc:
        case Photoshop:
        case Exif:
        case Gps:
        case Xmp:
            facts.masks.push_back(directory.hidden(i));
            break;
        case DngVersion:
            facts.kind = FileKind::Raw;
            break;
        default:
            break;
        }
    }
    if (source.overran()) {
        facts.error = limits::endsTooEarly();
        return;
    }
    if (facts.kind == FileKind::Raw)
        return;
    if (facts.channels < 1 || facts.channels > 64 || facts.bits < 1 || facts.bits > 64) {
        facts.error = limits::damagedHeader(facts.kind);
        return;
    }
    if (!dataLiesWithin(source, directory, offsets, lengths)) {
        facts.error = limits::endsTooEarly();
        return;
    }
    facts.cmyk = photometric == 5;
    if (facts.cmyk && (inks != 1 || facts.channels < 4))
        facts.error = QStringLiteral(
            "TIFF files with inks other than cyan, magenta, yellow and black can't be opened.");
    if (photometric == 8 || photometric == 9 || photometric == 10)
        facts.error = QStringLiteral("TIFF files in Lab colours can't be opened.");
    facts.pixelsPerByte = expansion(compression) * 8 / (double(facts.bits) * facts.channels);
}

} // namespace imageio
