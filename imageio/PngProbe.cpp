#include "imageio/DecodeLimits.h"
#include "imageio/FileProbe.h"

#include <QtEndian>

#include <zlib.h>

#include <algorithm>
#include <array>
#include <vector>

namespace imageio {

namespace {

constexpr int MaxChunks = 2'000'000;
constexpr double DeflateRatio = 1032;

/// How far a compressed chunk expands, counted without keeping the result.
qint64 expandedSize(ByteSource &source, qint64 begin, qint64 end, qint64 limit) {
    std::vector<std::uint8_t> in(1 << 16);
    std::vector<std::uint8_t> out(1 << 16);
    z_stream z{};
    if (inflateInit(&z) != Z_OK)
        return 0;
    qint64 total = 0;
    int state = Z_OK;
    while (begin < end && state == Z_OK && total <= limit) {
        const auto part = std::span(in).first(std::size_t(std::min<qint64>(qint64(in.size()), end - begin)));
        if (!source.read(begin, part))
            break;
        begin += qint64(part.size());
        z.next_in = part.data();
        z.avail_in = uInt(part.size());
        do {
            z.next_out = out.data();
            z.avail_out = uInt(out.size());
            state = inflate(&z, Z_NO_FLUSH);
            total += qint64(out.size() - z.avail_out);
        } while (state == Z_OK && z.avail_out == 0 && total <= limit);
    }
    inflateEnd(&z);
    return total;
}

/// Where the compressed bytes of a profile or text chunk begin, after their keyword fields.
qint64 compressedStart(ByteSource &source, qint64 begin, qint64 end, bool international) {
    const auto skipText = [&](qint64 at) {
        while (at < end && source.u8(at) != 0)
            ++at;
        return at + 1;
    };
    qint64 at = skipText(begin);
    if (!international)
        return at + 1;
    if (source.u8(at) == 0)
        return end;
    return skipText(skipText(at + 2));
}

/// Turns a chunk into one that decoders pass over, with the check sum that goes with its new name.
void hide(ByteSource &source, FileFacts &facts, qint64 body, qint64 length) {
    static constexpr std::uint8_t Unknown[] = {'o', 'r', 'V', 'n'};
    std::array<std::uint8_t, 4> name{};
    source.read(body - 4, name);
    // Check sums are linear: the change of the name, moved past the data, changes the sum.
    const uLong change = crc32(0, name.data(), 4) ^ crc32(0, Unknown, 4);
    const auto old = std::uint32_t(source.bigEndian(body + length, 4));
    const std::uint32_t sum = qToBigEndian(old ^ std::uint32_t(crc32_combine(change, 0, z_off_t(length))));
    facts.masks.push_back({body - 4, QByteArray(reinterpret_cast<const char *>(Unknown), 4)});
    facts.masks.push_back({body + length, QByteArray(reinterpret_cast<const char *>(&sum), 4)});
}

} // namespace

void probePng(ByteSource &source, FileFacts &facts) {
    qint64 at = 8;
    qint64 metadata = 0;
    bool data = false;
    if (!source.startsWith(12, "IHDR")) {
        facts.error = limits::damagedHeader(facts.kind);
        return;
    }
    for (int chunk = 0; chunk < MaxChunks; ++chunk) {
        const qint64 length = qint64(source.bigEndian(at, 4));
        const qint64 body = at + 8;
        const auto type = std::uint32_t(source.bigEndian(at + 4, 4));
        if (source.overran() || length > source.size() - body - 4) {
            facts.error = limits::endsTooEarly();
            return;
        }
        switch (type) {
        case 0x49484452: { // IHDR
            static constexpr int Channels[] = {1, 0, 3, 3, 2, 0, 4};
            facts.width = qint64(source.bigEndian(body, 4));
            facts.height = qint64(source.bigEndian(body + 4, 4));
            facts.bits = source.u8(body + 8);
            const int colour = source.u8(body + 9);
            facts.channels = colour <= 6 ? Channels[colour] : 0;
            if (facts.channels == 0 || facts.bits == 0) {
                facts.error = limits::damagedHeader(facts.kind);
                return;
            }
            const int stored = colour == 3 ? 1 : facts.channels;
            facts.pixelsPerByte = DeflateRatio * 8 / (facts.bits * stored);
            break;
        }
        case 0x49444154: // IDAT
            data = true;
            break;
        case 0x49454e44: // IEND
            if (!data)
                facts.error = limits::endsTooEarly();
            return;
        case 0x69434350:   // iCCP
        case 0x7a545874:   // zTXt
        case 0x69545874: { // iTXt
            const qint64 start = compressedStart(source, body, body + length, type == 0x69545874);
            metadata += expandedSize(source, start, body + length, limits::MaxMetadataBytes);
            [[fallthrough]];
        }
        default:
            metadata += length;
            hide(source, facts, body, length);
            break;
        case 0x504c5445: // PLTE
        case 0x74524e53: // tRNS
        case 0x70485973: // pHYs
            break;
        }
        if (metadata > limits::MaxMetadataBytes) {
            facts.error = limits::metadataTooLarge();
            return;
        }
        at = body + length + 4;
    }
    facts.error = limits::damagedHeader(facts.kind);
}

} // namespace imageio
