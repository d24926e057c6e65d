#include "imageio/DecodeLimits.h"
#include "imageio/FileProbe.h"
#include "imageio/Text.h"

#include <algorithm>
#include <array>
#include <vector>

namespace imageio {

namespace {

constexpr int MaxBoxes = 20000;

constexpr std::uint32_t name(const char (&text)[5]) {
    return std::uint32_t(std::uint8_t(text[0])) << 24 | std::uint32_t(std::uint8_t(text[1])) << 16 |
           std::uint32_t(std::uint8_t(text[2])) << 8 | std::uint8_t(text[3]);
}

struct Box {
    std::uint32_t type = 0;
    qint64 begin = 0; ///< of the content
    qint64 end = 0;
};

/// The boxes that lie side by side in a range. Stops at the first that does not fit.
std::vector<Box> boxes(ByteSource &source, qint64 at, qint64 end) {
    std::vector<Box> found;
    while (end - at >= 8 && found.size() < MaxBoxes) {
        auto length = qint64(source.bigEndian(at, 4));
        Box box{std::uint32_t(source.bigEndian(at + 4, 4)), at + 8, 0};
        if (length == 1) {
            length = qint64(source.bigEndian(at + 8, 8));
            box.begin += 8;
        } else if (length == 0) {
            length = end - at;
        }
        if (length < box.begin - at || length > end - at)
            break;
        box.end = at + length;
        found.push_back(box);
        at += length;
    }
    return found;
}

Box find(const std::vector<Box> &list, std::uint32_t type) {
    for (const Box &box : list) {
        if (box.type == type)
            return box;
    }
    return {};
}

qint64 quotient(ByteSource &source, qint64 at) {
    const auto lower = qint64(source.bigEndian(at + 4, 4));
    return lower == 0 ? 0 : qint64(source.bigEndian(at, 4)) / lower;
}

struct PropertyIndices {
    std::uint64_t primary = 0;
    std::vector<std::size_t> list; ///< counted from 1
};

PropertyIndices primaryProperties(ByteSource &source, const Box &pitm, const Box &ipma) {
    PropertyIndices result;
    result.primary = source.bigEndian(pitm.begin + 4, source.u8(pitm.begin) == 0 ? 2 : 4);
    const int idBytes = source.u8(ipma.begin) == 0 ? 2 : 4;
    const bool wide = source.u8(ipma.begin + 3) & 1;
    const auto items = qint64(source.bigEndian(ipma.begin + 4, 4));
    qint64 at = ipma.begin + 8;
    for (qint64 i = 0; i < items && at < ipma.end; ++i) {
        const bool wanted = source.bigEndian(at, idBytes) == result.primary;
        const int count = source.u8(at + idBytes);
        at += idBytes + 1;
        for (int k = 0; k < count; ++k, at += wide ? 2 : 1) {
            if (wanted)
                result.list.push_back(wide ? source.bigEndian(at, 2) & 0x7fff : source.u8(at) & 0x7f);
        }
        if (wanted)
            break;
    }
    return result;
}

} // namespace

void probeHeif(ByteSource &source, FileFacts &facts) {
    static constexpr std::array<std::string_view, 10> Brands = {"heic", "heix", "heim", "heis", "hevc",
                                                                "mif1", "msf1", "avif", "avis", "miaf"};
    facts.bits = 8;
    facts.channels = 3;
    facts.pixelsPerByte = 5000;
    bool brand = false;
    for (const std::string_view b : Brands)
        brand = brand || source.startsWith(8, b);
    if (!brand) {
        facts.error = Text::tr("The file is a video or another media file, not a picture.");
        return;
    }
    const Box meta = find(boxes(source, 0, source.size()), name("meta"));
    const std::vector<Box> parts = boxes(source, meta.begin + 4, meta.end);
    const std::vector<Box> iprp =
        boxes(source, find(parts, name("iprp")).begin, find(parts, name("iprp")).end);
    const Box ipco = find(iprp, name("ipco"));
    const Box ipma = find(iprp, name("ipma"));
    const Box pitm = find(parts, name("pitm"));
    if (ipco.end == 0 || ipma.end == 0 || pitm.end == 0) {
        facts.error = source.size() < 4096 || meta.end == 0 ? limits::endsTooEarly()
                                                            : limits::damagedHeader(facts.kind);
        return;
    }
    const std::vector<Box> properties = boxes(source, ipco.begin, ipco.end);
    for (const std::size_t index : primaryProperties(source, pitm, ipma).list) {
        if (index == 0 || index > properties.size())
            continue;
        const Box &p = properties[index - 1];
        if (p.type == name("ispe")) {
            facts.width = qint64(source.bigEndian(p.begin + 4, 4));
            facts.height = qint64(source.bigEndian(p.begin + 8, 4));
        } else if (p.type == name("clap")) {
            // Coded sizes are multiples of a block; this names the part that is shown.
            facts.width = quotient(source, p.begin);
            facts.height = quotient(source, p.begin + 8);
        } else if (p.type == name("irot")) {
            facts.turned = source.u8(p.begin) & 1;
        }
    }
    for (const Box &p : properties) {
        const auto kind = std::uint32_t(source.bigEndian(p.begin, 4));
        if (p.type != name("colr") || (kind != name("prof") && kind != name("rICC")))
            continue;
        facts.icc.resize(std::min(p.end - p.begin - 4, limits::MaxMetadataBytes));
        source.read(p.begin + 4,
                    {reinterpret_cast<std::uint8_t *>(facts.icc.data()), std::size_t(facts.icc.size())});
        break;
    }
    // Parts of a mosaic and hidden pictures are decoded or allocated by their own sizes.
    for (const Box &p : properties) {
        if (p.type == name("ispe") && facts.error.isEmpty())
            facts.error = limits::checkSize(qint64(source.bigEndian(p.begin + 4, 4)),
                                            qint64(source.bigEndian(p.begin + 8, 4)), source.size(), 0);
    }
    if (facts.error.isEmpty() && source.overran())
        facts.error = limits::endsTooEarly();
}

} // namespace imageio
