#include "imageio/DecodeLimits.h"
#include "imageio/FileProbe.h"

#include <cstdlib>

namespace imageio {

void probeWebP(ByteSource &source, FileFacts &facts) {
    facts.bits = 8;
    facts.channels = 3;
    // A flat picture compresses to almost nothing here; this much no photograph reaches.
    facts.pixelsPerByte = 20000;
    if (qint64(source.littleEndian(4, 4)) + 8 > source.size()) {
        facts.error = limits::endsTooEarly();
        return;
    }
    if (source.startsWith(12, "VP8 ") && source.startsWith(23, "\x9d\x01\x2a")) {
        facts.width = qint64(source.littleEndian(26, 2) & 0x3fff);
        facts.height = qint64(source.littleEndian(28, 2) & 0x3fff);
    } else if (source.startsWith(12, "VP8L") && source.u8(20) == 0x2f) {
        const std::uint64_t packed = source.littleEndian(21, 4);
        facts.width = qint64(packed & 0x3fff) + 1;
        facts.height = qint64(packed >> 14 & 0x3fff) + 1;
        facts.channels = packed >> 28 & 1 ? 4 : 3;
    } else if (source.startsWith(12, "VP8X")) {
        facts.channels = source.u8(20) & 0x10 ? 4 : 3;
        facts.width = qint64(source.littleEndian(24, 3)) + 1;
        facts.height = qint64(source.littleEndian(27, 3)) + 1;
    } else {
        facts.error = limits::damagedHeader(facts.kind);
    }
    if (facts.error.isEmpty() && source.overran())
        facts.error = limits::endsTooEarly();
}

void probeBmp(ByteSource &source, FileFacts &facts) {
    const auto header = source.littleEndian(14, 4);
    const auto dataStart = qint64(source.littleEndian(10, 4));
    int depth = 0;
    std::uint64_t compression = 0;
    if (header == 12) {
        facts.width = qint64(source.littleEndian(18, 2));
        facts.height = qint64(source.littleEndian(20, 2));
        depth = int(source.littleEndian(24, 2));
    } else {
        facts.width = std::int32_t(source.littleEndian(18, 4));
        facts.height = std::abs(qint64(std::int32_t(source.littleEndian(22, 4))));
        depth = int(source.littleEndian(28, 2));
        compression = source.littleEndian(30, 4);
    }
    if (source.overran()) {
        facts.error = limits::endsTooEarly();
        return;
    }
    const bool known = depth == 1 || depth == 4 || depth == 8 || depth == 16 || depth == 24 || depth == 32;
    if ((header != 12 && (header < 40 || header > 124)) || !known || compression > 6) {
        facts.error = limits::damagedHeader(facts.kind);
        return;
    }
    facts.bits = 8;
    facts.channels = depth == 32 ? 4 : 3;
    facts.pixelsPerByte = 256;
    const bool packedRows = compression != 1 && compression != 2;
    if (packedRows && facts.width > 0 && facts.width <= limits::MaxSide && facts.height <= limits::MaxSide) {
        const qint64 row = (facts.width * depth + 31) / 32 * 4;
        if (dataStart > source.size() || row * facts.height > source.size() - dataStart)
            facts.error = limits::endsTooEarly();
    }
}

} // namespace imageio
