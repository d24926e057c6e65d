#include "imageio/SupportedFormats.h"

#include <OpenImageIO/imageio.h>
#include <libraw/libraw.h>

#include <array>
#include <string_view>

namespace imageio {

namespace {

/// RAW extensions with the maker as it begins the library's camera names; empty: any maker.
struct RawExtension {
    const char *extension;
    std::string_view maker;
};
constexpr std::array RawExtensions = {
    RawExtension{"3fr", "Hasselblad"}, RawExtension{"ari", "ARRI"},      RawExtension{"arw", "Sony"},
    RawExtension{"bay", "Casio"},      RawExtension{"cap", "Phase One"}, RawExtension{"cr2", "Canon"},
    RawExtension{"cr3", "Canon"},      RawExtension{"crw", "Canon"},     RawExtension{"dcr", "Kodak"},
    RawExtension{"dcs", "Kodak"},      RawExtension{"dng", ""},          RawExtension{"drf", "Kodak"},
    RawExtension{"eip", "Phase One"},  RawExtension{"erf", "Epson"},     RawExtension{"fff", "Imacon"},
    RawExtension{"iiq", "Phase One"},  RawExtension{"k25", "Kodak"},     RawExtension{"kdc", "Kodak"},
    RawExtension{"mdc", "Minolta"},    RawExtension{"mef", "Mamiya"},    RawExtension{"mos", "Leaf"},
    RawExtension{"mrw", "Minolta"},    RawExtension{"nef", "Nikon"},     RawExtension{"nrw", "Nikon"},
    RawExtension{"orf", "Olympus"},    RawExtension{"pef", "Pentax"},    RawExtension{"ptx", "Pentax"},
    RawExtension{"pxn", "Logitech"},   RawExtension{"raf", "Fujifilm"},  RawExtension{"raw", ""},
    RawExtension{"rw2", "Panasonic"},  RawExtension{"rwl", "Leica"},     RawExtension{"rwz", "Rawzor"},
    RawExtension{"sr2", "Sony"},       RawExtension{"srf", "Sony"},      RawExtension{"srw", "Samsung"},
};

struct PictureExtension {
    const char *extension;
    FileKind kind;
    bool writable;
};
constexpr std::array PictureExtensions = {
    PictureExtension{"jpg", FileKind::Jpeg, true},   PictureExtension{"jpeg", FileKind::Jpeg, true},
    PictureExtension{"jpe", FileKind::Jpeg, true},   PictureExtension{"jfif", FileKind::Jpeg, true},
    PictureExtension{"png", FileKind::Png, true},    PictureExtension{"tif", FileKind::Tiff, true},
    PictureExtension{"tiff", FileKind::Tiff, true},  PictureExtension{"webp", FileKind::WebP, true},
    PictureExtension{"bmp", FileKind::Bmp, true},    PictureExtension{"heic", FileKind::Heif, false},
    PictureExtension{"heif", FileKind::Heif, false}, PictureExtension{"hif", FileKind::Heif, false},
    PictureExtension{"avif", FileKind::Heif, false},
};

QStringList findRawExtensions() {
    QStringList found;
    const char **cameras = LibRaw::cameraList();
    for (const RawExtension &candidate : RawExtensions) {
        bool known = candidate.maker.empty();
        for (const char **camera = cameras; camera && *camera && !known; ++camera)
            known = std::string_view(*camera).starts_with(candidate.maker);
        if (known)
            found += QString::fromLatin1(candidate.extension);
    }
    if (LibRaw::capabilities() & LIBRAW_CAPS_X3FTOOLS)
        found += QStringLiteral("x3f");
    if (LibRaw::capabilities() & LIBRAW_CAPS_GPRSDK)
        found += QStringLiteral("gpr");
    return found;
}

FileFormats find() {
    FileFormats formats;
    formats.raw = findRawExtensions();
    for (const PictureExtension &p : PictureExtensions) {
        const auto extension = QString::fromLatin1(p.extension);
        if (OIIO::ImageInput::create(pluginName(p.kind)))
            formats.readable += extension;
        if (p.writable && OIIO::ImageOutput::create(pluginName(p.kind)))
            formats.writable += extension;
    }
    formats.readable += formats.raw;
    formats.writable += QStringLiteral("dng");
    return formats;
}

} // namespace

const FileFormats &supportedFormats() {
    static const FileFormats formats = find();
    return formats;
}

const QStringList &rawExtensions() {
    static const QStringList extensions = findRawExtensions();
    return extensions;
}

FileKind kindOfExtension(const QString &extension) {
    for (const PictureExtension &p : PictureExtensions) {
        if (extension == QLatin1String(p.extension))
            return p.kind;
    }
    return rawExtensions().contains(extension) ? FileKind::Raw : FileKind::Unknown;
}

} // namespace imageio
