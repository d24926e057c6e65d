#pragma once

#include "imageio/FileProbe.h"

namespace imageio {

enum TiffTag {
    SubfileType = 254,
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
    SubDirectories = 330,
    InkSet = 332,
    Iptc = 33723,
    Photoshop = 34377,
    Exif = 34665,
    Icc = 34675,
    Gps = 34853,
    Xmp = 700,
    DngVersion = 50706,
};

/// Entries of one directory of a TIFF file, in either byte order and either file size variant. Values that
/// lie outside the file are 0 and set the source's mark.
class TiffDirectory {
public:
    /// The first one of the file, or that at `begin`.
    explicit TiffDirectory(ByteSource &source, qint64 begin = 0);

    qint64 count() const { return m_count; }
    /// Where the next directory begins; 0 after the last.
    qint64 next() { return qint64(number(entry(m_count), m_offsetBytes)); }
    int tag(qint64 i) { return int(number(entry(i), 2)); }
    /// The entry with this tag, -1 where there is none.
    qint64 find(int wanted);
    std::uint64_t values(qint64 i) { return number(entry(i) + 4, m_offsetBytes); }
    /// Value k of entry i when they are unsigned numbers, else 0.
    qint64 value(qint64 i, std::uint64_t k = 0);
    /// The bytes of entry i, which must be of a type of one byte.
    QByteArray bytes(qint64 i);
    /// The size of one value of entry i, 0 for types other than unsigned numbers.
    int typeBytes(qint64 i);
    /// Gives entry i a tag that decoders pass over.
    FileMask hidden(qint64 i) const;
    /// True when every strip or tile lies within the file. Decoders fill in what lies beyond.
    bool dataLiesWithin();

private:
    std::uint64_t number(qint64 at, int bytes) {
        return m_big ? m_source.bigEndian(at, bytes) : m_source.littleEndian(at, bytes);
    }
    qint64 entry(qint64 i) const { return m_begin + (m_wide ? 8 + i * 20 : 2 + i * 12); }
    qint64 inlineValue(qint64 i) const { return entry(i) + (m_wide ? 12 : 8); }

    ByteSource &m_source;
    bool m_big;
    bool m_wide;
    int m_offsetBytes;
    qint64 m_begin = 0;
    qint64 m_count = 0;
};

} // namespace imageio
