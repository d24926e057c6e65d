#include "imageio/DecodeLimits.h"
#include "imageio/Text.h"
#include "imageio/TiffDirectory.h"

#include <algorithm>

namespace imageio {

namespace {

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

/// The picture of a DNG lies in the first directory or one below it; others hold previews.
bool isMainPicture(TiffDirectory &directory) {
    return directory.value(directory.find(SubfileType)) == 0 && directory.find(Width) >= 0;
}

} // namespace

void probeRawTiff(ByteSource &source, FileFacts &facts) {
    TiffDirectory first(source);
    if (source.overran()) {
        facts.error = limits::endsTooEarly();
        return;
    }
    constexpr qint64 MostEntries = 4096;
    constexpr std::uint64_t MostDirectories = 64;
    if (first.count() > MostEntries || first.find(DngVersion) < 0)
        return;
    bool whole = !isMainPicture(first) || first.dataLiesWithin();
    const qint64 below = first.find(SubDirectories);
    const std::uint64_t count = below < 0 ? 0 : std::min(first.values(below), MostDirectories);
    for (std::uint64_t k = 0; k < count && whole; ++k) {
        TiffDirectory directory(source, first.value(below, k));
        whole = !source.overran() && directory.count() <= MostEntries &&
                (!isMainPicture(directory) || directory.dataLiesWithin());
    }
    if (!whole)
        facts.error = limits::endsTooEarly();
}

void probeTiff(ByteSource &source, FileFacts &facts) {
    TiffDirectory directory(source);
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
    if (facts.kind == FileKind::Raw) {
        probeRawTiff(source, facts);
        return;
    }
    if (facts.channels < 1 || facts.channels > 64 || facts.bits < 1 || facts.bits > 64) {
        facts.error = limits::damagedHeader(facts.kind);
        return;
    }
    if (!directory.dataLiesWithin()) {
        facts.error = limits::endsTooEarly();
        return;
    }
    facts.cmyk = photometric == 5;
    if (facts.cmyk && (inks != 1 || facts.channels < 4))
        facts.error =
            Text::tr("TIFF files with inks other than cyan, magenta, yellow and black can't be opened.");
    if (photometric == 8 || photometric == 9 || photometric == 10)
        facts.error = Text::tr("TIFF files in Lab colours can't be opened.");
    facts.pixelsPerByte = expansion(compression) * 8 / (double(facts.bits) * facts.channels);
}

} // namespace imageio
