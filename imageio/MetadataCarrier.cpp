#include "imageio/MetadataCarrier.h"

#include "imageio/CameraMetadata.h"
#include "imageio/ColourProfile.h"
#include "imageio/Text.h"

#include <exiv2/exiv2.hpp>

#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <numeric>

namespace imageio {

namespace {

constexpr char Software[] = "Orvane Studio " ORVANE_VERSION;

/// Entries of the first directory that describe how the pixels of their own file are stored.
constexpr std::array<std::uint16_t, 44> StorageTags = {
    0x00fe, 0x00ff, 0x0100, 0x0101, 0x0102, 0x0103, 0x0106, 0x010a, 0x0111, 0x0115, 0x0116,
    0x0117, 0x011c, 0x013d, 0x0140, 0x0142, 0x0143, 0x0144, 0x0145, 0x014a, 0x0152, 0x0153,
    0x0154, 0x0155, 0x015b, 0x0200, 0x0201, 0x0202, 0x0203, 0x0205, 0x0211, 0x0212, 0x0213,
    0x0214, 0x02bc, 0x828d, 0x828e, 0x83bb, 0x8649, 0x8773, 0x9216, 0x935c, 0xc4a5, 0xc5d9};

constexpr std::uint16_t PrivateData = 0xc634; ///< maker notes as converters to DNG keep them
constexpr std::uint16_t PrivateDataSafety = 0xc635;

/// DNG entries that describe sensor and rendering. Serial number, lens and original name stay.
bool isRenderingTag(std::uint16_t tag) {
    constexpr std::array<std::uint16_t, 5> Kept = {PrivateData, PrivateDataSafety, 0xc62f, 0xc630, 0xc68b};
    return tag >= 0xc612 && tag <= 0xcd4f && std::ranges::find(Kept, tag) == Kept.end();
}

bool describesOldPixels(const Exiv2::Exifdatum &datum, OutputKind kind) {
    const std::string group = datum.groupName();
    if (group.starts_with("SubImage") || group.starts_with("SubThumb") || group == "Thumbnail" ||
        group == "Image2" || group == "Image3" || group == "PanasonicRaw")
        return true;
    if (group != "Image")
        return false;
    const std::uint16_t tag = datum.tag();
    if ((tag == PrivateData || tag == PrivateDataSafety) && kind != OutputKind::Dng &&
        kind != OutputKind::Tiff)
        return true;
    return std::ranges::find(StorageTags, tag) != StorageTags.end() || isRenderingTag(tag);
}

struct Packets {
    Exiv2::ExifData exif;
    Exiv2::IptcData iptc;
    Exiv2::XmpData xmp;
};

Packets readSource(const QString &path, OutputKind kind) {
    Packets packets;
    if (path.isEmpty() || !QFileInfo(path).isFile())
        return packets;
    try {
        const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
        readIntactPart(*image, path);
        for (const Exiv2::Exifdatum &datum : image->exifData()) {
            if (!describesOldPixels(datum, kind))
                packets.exif.add(datum);
        }
        packets.iptc = image->iptcData();
        packets.xmp = image->xmpData();
    } catch (const std::exception &e) {
        qWarning("The metadata of the original can't be read and was not carried over: %s", e.what());
    }
    return packets;
}

void correctExif(Exiv2::ExifData &exif, const MetadataCorrections &c) {
    const bool srgb = isSrgb(c.icc);
    exif["Exif.Image.Orientation"] = std::uint16_t(1);
    exif["Exif.Image.Software"] = std::string(Software);
    exif["Exif.Photo.PixelXDimension"] = std::uint32_t(c.size.width());
    exif["Exif.Photo.PixelYDimension"] = std::uint32_t(c.size.height());
    exif["Exif.Photo.ColorSpace"] = std::uint16_t(srgb ? 1 : 65535);
    if (c.resolution > 0) {
        constexpr int Parts = 1000;
        const auto scaled = std::uint32_t(std::lround(std::min(c.resolution, 1e6) * Parts));
        const auto common = std::gcd(scaled, std::uint32_t(Parts));
        const Exiv2::URational density(scaled / common, Parts / common);
        exif["Exif.Image.XResolution"] = density;
        exif["Exif.Image.YResolution"] = density;
        exif["Exif.Image.ResolutionUnit"] = std::uint16_t(c.resolutionUnit == 3 ? 3 : 2);
    }
    const auto interoperability = exif.findKey(Exiv2::ExifKey("Exif.Iop.InteroperabilityIndex"));
    if (srgb && interoperability != exif.end() && interoperability->toString().starts_with("R03"))
        exif.erase(interoperability);
}

void correctXmp(Exiv2::XmpData &xmp, const MetadataCorrections &c) {
    if (xmp.empty())
        return;
    const auto replace = [&](const char *key, const std::string &value) {
        if (const auto it = xmp.findKey(Exiv2::XmpKey(key)); it != xmp.end())
            it->setValue(value);
    };
    replace("Xmp.tiff.Orientation", "1");
    replace("Xmp.tiff.ImageWidth", std::to_string(c.size.width()));
    replace("Xmp.tiff.ImageLength", std::to_string(c.size.height()));
    replace("Xmp.exif.PixelXDimension", std::to_string(c.size.width()));
    replace("Xmp.exif.PixelYDimension", std::to_string(c.size.height()));
    replace("Xmp.exif.ColorSpace", isSrgb(c.icc) ? "1" : "65535");
    xmp["Xmp.xmp.CreatorTool"] = std::string(Software);
    for (auto it = xmp.begin(); it != xmp.end();) {
        const std::string key = it->key();
        // Development settings of the camera file would be applied a second time to its result.
        const bool settings = c.sourceIsRaw && key.starts_with("Xmp.crs.");
        const bool storage = key == "Xmp.tiff.XResolution" || key == "Xmp.tiff.YResolution" ||
                             key == "Xmp.tiff.ResolutionUnit" || key.starts_with("Xmp.xmp.Thumbnails");
        it = settings || storage ? xmp.erase(it) : std::next(it);
    }
}

void store(const QString &target, OutputKind kind, const Packets &packets, const QByteArray &icc) {
    const auto image = Exiv2::ImageFactory::open(QFile::encodeName(target).toStdString());
    image->readMetadata();
    // In a TIFF the entries that describe storage belong to the same list as the camera's.
    const bool tiff = kind == OutputKind::Tiff || kind == OutputKind::Dng;
    Exiv2::ExifData exif = tiff ? image->exifData() : Exiv2::ExifData();
    for (const Exiv2::Exifdatum &datum : packets.exif) {
        const auto old = exif.findKey(Exiv2::ExifKey(datum.key()));
        if (old != exif.end())
            exif.erase(old);
        exif.add(datum);
    }
    image->setExifData(exif);
    if (image->checkMode(Exiv2::mdIptc) & Exiv2::amWrite)
        image->setIptcData(packets.iptc);
    if (image->checkMode(Exiv2::mdXmp) & Exiv2::amWrite)
        image->setXmpData(packets.xmp);
    if (kind == OutputKind::WebP && !icc.isEmpty())
        image->setIccProfile(
            Exiv2::DataBuf(reinterpret_cast<const Exiv2::byte *>(icc.constData()), std::size_t(icc.size())));
    image->writeMetadata();
}

/// What to leave out, one after the other, where a container can't hold everything (JPEG limits a
/// packet to 64 KB).
void leaveOut(Packets &packets, int step) {
    const auto erase = [&](const char *key) {
        const auto it = packets.exif.findKey(Exiv2::ExifKey(key));
        if (it != packets.exif.end())
            packets.exif.erase(it);
    };
    if (step == 1) {
        qWarning("The metadata is too large for this format; the editing history was left out.");
        for (auto it = packets.xmp.begin(); it != packets.xmp.end();) {
            const std::string key = it->key();
            const bool bulky =
                key.starts_with("Xmp.xmpMM.History") || key.starts_with("Xmp.photoshop.DocumentAncestors");
            it = bulky ? packets.xmp.erase(it) : std::next(it);
        }
    } else if (step == 2) {
        qWarning("The metadata is too large for this format; the camera's maker notes were left out.");
        erase("Exif.Photo.MakerNote");
        for (auto it = packets.exif.begin(); it != packets.exif.end();) {
            const bool makerNote = it->ifdId() == Exiv2::IfdId::mnId || it->ifdId() > Exiv2::IfdId::mnId;
            it = makerNote ? packets.exif.erase(it) : std::next(it);
        }
    } else {
        qWarning("The metadata is too large for this format; the XMP part was left out.");
        packets.xmp.clear();
    }
}

} // namespace

QString carryMetadata(const QString &source, const QString &target, OutputKind kind,
                      const MetadataCorrections &corrections) {
    if (kind == OutputKind::Bmp)
        return {};
    startMetadataLibrary();
    try {
        Packets packets = readSource(source, kind);
        correctExif(packets.exif, corrections);
        correctXmp(packets.xmp, corrections);
        constexpr int Steps = 3;
        for (int step = 0;; ++step) {
            try {
                store(target, kind, packets, corrections.icc);
                return {};
            } catch (const Exiv2::Error &e) {
                if (step == Steps || e.code() != Exiv2::ErrorCode::kerTooLargeJpegSegment)
                    throw;
                leaveOut(packets, step + 1);
            }
        }
    } catch (const std::exception &e) {
        return Text::tr("The metadata can't be written: %1.").arg(QString::fromUtf8(e.what()));
    }
}

} // namespace imageio
