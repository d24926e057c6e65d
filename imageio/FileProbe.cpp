#include "imageio/FileProbe.h"

#include "imageio/DecodeLimits.h"
#include "imageio/SupportedFormats.h"
#include "imageio/Text.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstring>

namespace imageio {

namespace {

struct Signature {
    qint64 offset;
    std::string_view bytes;
    FileKind kind;
};

// Camera formats that are no TIFF, or a TIFF with a mark of its own, come first.
constexpr std::array Signatures = {
    Signature{0, {"\xff\xd8\xff", 3}, FileKind::Jpeg},
    Signature{0, {"\x89PNG\r\n\x1a\n", 8}, FileKind::Png},
    Signature{0, {"FUJIFILMCCD-RAW", 15}, FileKind::Raw},
    Signature{0, {"IIU\0", 4}, FileKind::Raw},
    Signature{0, {"IIRO", 4}, FileKind::Raw},
    Signature{0, {"IIRS", 4}, FileKind::Raw},
    Signature{0, {"MMOR", 4}, FileKind::Raw},
    Signature{0, {"\0MRM", 4}, FileKind::Raw},
    Signature{0, {"FOVb", 4}, FileKind::Raw},
    Signature{6, {"HEAPCCDR", 8}, FileKind::Raw},
    Signature{4, {"ftypcrx ", 8}, FileKind::Raw},
    Signature{8, {"CR\2", 3}, FileKind::Raw},
    Signature{0, {"II*\0", 4}, FileKind::Tiff},
    Signature{0, {"MM\0*", 4}, FileKind::Tiff},
    Signature{0, {"II+\0", 4}, FileKind::Tiff},
    Signature{0, {"MM\0+", 4}, FileKind::Tiff},
    Signature{8, {"WEBP", 4}, FileKind::WebP},
    Signature{4, {"ftyp", 4}, FileKind::Heif},
    Signature{0, {"BM", 2}, FileKind::Bmp},
};

FileKind kindByContent(ByteSource &source) {
    for (const Signature &s : Signatures) {
        if (source.startsWith(s.offset, s.bytes))
            return s.kind;
    }
    return FileKind::Unknown;
}

bool holdsText(ByteSource &source) {
    std::array<std::uint8_t, 256> head{};
    const auto bytes =
        std::span(head).first(std::size_t(std::min<qint64>(qint64(head.size()), source.size())));
    source.read(0, bytes);
    return std::ranges::all_of(
        bytes, [](std::uint8_t b) { return b >= 0x20 ? b != 0x7f : b == '\n' || b == '\r' || b == '\t'; });
}

QString unknownContent(ByteSource &source) {
    if (holdsText(source))
        return Text::tr("The file holds text, not a picture.");
    return Text::tr("The file is not a picture in a format that can be opened.");
}

} // namespace

const char *pluginName(FileKind kind) {
    switch (kind) {
    case FileKind::Jpeg:
        return "jpeg";
    case FileKind::Png:
        return "png";
    case FileKind::Tiff:
        return "tiff";
    case FileKind::WebP:
        return "webp";
    case FileKind::Bmp:
        return "bmp";
    case FileKind::Heif:
        return "heif";
    case FileKind::Raw:
    case FileKind::Unknown:
        break;
    }
    return "";
}

QString kindName(FileKind kind) {
    switch (kind) {
    case FileKind::Jpeg:
        return QStringLiteral("JPEG");
    case FileKind::Png:
        return QStringLiteral("PNG");
    case FileKind::Tiff:
        return QStringLiteral("TIFF");
    case FileKind::WebP:
        return QStringLiteral("WebP");
    case FileKind::Bmp:
        return QStringLiteral("BMP");
    case FileKind::Heif:
        return QStringLiteral("HEIF");
    case FileKind::Raw:
        return QStringLiteral("RAW");
    case FileKind::Unknown:
        break;
    }
    return QStringLiteral("unknown");
}

FileFacts probeFile(const QString &path) {
    FileFacts facts;
    ByteSource source;
    facts.error = source.open(path);
    if (!facts.error.isEmpty())
        return facts;
    facts.fileSize = source.size();
    facts.kind = kindByContent(source);
    const QString suffix = QFileInfo(path).suffix().toLower();
    const bool rawName = rawExtensions().contains(suffix);
    const bool tiff = facts.kind == FileKind::Tiff;
    if (rawName && (tiff || (facts.kind == FileKind::Unknown && !holdsText(source))))
        facts.kind = FileKind::Raw;

    switch (facts.kind) {
    case FileKind::Jpeg:
        probeJpeg(source, facts);
        break;
    case FileKind::Png:
        probePng(source, facts);
        break;
    case FileKind::Tiff:
        probeTiff(source, facts);
        break;
    case FileKind::WebP:
        probeWebP(source, facts);
        break;
    case FileKind::Bmp:
        probeBmp(source, facts);
        break;
    case FileKind::Heif:
        probeHeif(source, facts);
        break;
    case FileKind::Raw:
        if (tiff)
            probeRawTiff(source, facts);
        break;
    case FileKind::Unknown:
        facts.error = unknownContent(source);
        break;
    }
    if (facts.error.isEmpty() && facts.kind != FileKind::Raw)
        facts.error = limits::checkSize(facts.width, facts.height, facts.fileSize, facts.pixelsPerByte);
    facts.nameDisagrees = !suffix.isEmpty() && kindOfExtension(suffix) != facts.kind;
    return facts;
}

} // namespace imageio
