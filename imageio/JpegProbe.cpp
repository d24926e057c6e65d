#include "imageio/DecodeLimits.h"
#include "imageio/FileProbe.h"
#include "imageio/Text.h"

namespace imageio {

namespace {

bool isFrameHeader(int marker) {
    return marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
}

} // namespace

void probeJpeg(ByteSource &source, FileFacts &facts) {
    bool adobe = false;
    qint64 at = 2;
    qint64 metadata = 0;
    while (!source.overran()) {
        // Stray bytes before a marker are skipped, as decoders do, and count as metadata.
        while (source.u8(at) != 0xff && !source.overran() && metadata < limits::MaxMetadataBytes) {
            ++at;
            ++metadata;
        }
        while (source.u8(at) == 0xff)
            ++at;
        const int marker = source.u8(at++);
        if (marker == 0 || marker == 0x01 || (marker >= 0xd0 && marker <= 0xd8))
            continue;
        const qint64 length = qint64(source.bigEndian(at, 2));
        if (source.overran())
            break;
        if (marker == 0xd9 || marker == 0xda || length < 2) {
            facts.error = limits::damagedHeader(facts.kind);
            return;
        }
        metadata += length;
        if (metadata > limits::MaxMetadataBytes) {
            facts.error = limits::metadataTooLarge();
            return;
        }
        if (marker == 0xee && source.startsWith(at + 2, "Adobe"))
            adobe = true;
        if (isFrameHeader(marker)) {
            facts.bits = source.u8(at + 2);
            facts.height = qint64(source.bigEndian(at + 3, 2));
            facts.width = qint64(source.bigEndian(at + 5, 2));
            facts.channels = source.u8(at + 7);
            facts.cmyk = facts.channels == 4;
            facts.cmykInverted = facts.cmyk && adobe;
            // A coding unit of at most 512 pixels takes ten bits or more.
            facts.pixelsPerByte = 512;
            if (source.overran())
                break;
            if (facts.bits != 8)
                facts.error =
                    Text::tr("JPEG files with %1 bits per channel can't be opened.").arg(facts.bits);
            return;
        }
        at += length;
    }
    facts.error = limits::endsTooEarly();
}

} // namespace imageio
