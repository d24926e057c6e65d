#include "imageio/PixelEncoder.h"

#include "imageio/ColourProfile.h"
#include "imageio/DngEncoder.h"
#include "imageio/JpegEncoder.h"
#include "imageio/PixelConversion.h"
#include "imageio/Text.h"
#include "imageio/WebpEncoder.h"

#include <OpenImageIO/imageio.h>

#include <QDebug>

#include <algorithm>

namespace imageio {

namespace {

constexpr int RowsPerBlock = 64;

const char *writerName(OutputKind kind) {
    switch (kind) {
    case OutputKind::Png:
        return "png";
    case OutputKind::Tiff:
        return "tiff";
    case OutputKind::Bmp:
        return "bmp";
    case OutputKind::Jpeg:
    case OutputKind::WebP:
    case OutputKind::Dng:
        break;
    }
    return "";
}

OIIO::ImageSpec describe(const ImageData &image, const EncodePlan &plan) {
    OIIO::ImageSpec spec(image.width(), image.height(), plan.channels,
                         plan.bits == 8 ? OIIO::TypeDesc::UINT8 : OIIO::TypeDesc::UINT16);
    if (plan.channels == 4) {
        spec.alpha_channel = 3;
        spec.attribute("oiio:UnassociatedAlpha", 1);
    }
    spec.attribute("oiio:ColorSpace", "sRGB");
    // Without a date the library writes the present one, and no two files of one picture would be the same.
    // Of a type that the tag cannot have, none is written; that of the input comes with its metadata.
    spec.attribute("DateTime", 0);
    spec.attribute("XResolution", float(plan.resolution));
    spec.attribute("YResolution", float(plan.resolution));
    spec.attribute("ResolutionUnit", plan.resolutionUnit == 3 ? "cm" : "in");
    const QByteArray icc = image.iccProfile();
    if (!icc.isEmpty() && plan.kind != OutputKind::Bmp)
        spec.attribute("ICCProfile", OIIO::TypeDesc(OIIO::TypeDesc::UINT8, int(icc.size())), icc.constData());
    for (const auto &[key, value] : plan.attributes.asKeyValueRange()) {
        const std::string name = key.toStdString();
        const int type = value.typeId();
        if (type == QMetaType::QString || type == QMetaType::QByteArray)
            spec.attribute(name, value.toString().toStdString());
        else if (type == QMetaType::Double || type == QMetaType::Float)
            spec.attribute(name,
                           float(value.toDouble()) == float(value.toInt()) ? OIIO::TypeInt : OIIO::TypeFloat,
                           value.toString().toStdString());
        else
            spec.attribute(name, value.toInt());
    }
    return spec;
}

int blockRows(const EncodePlan &plan) {
    const int strip = plan.attributes.value(QStringLiteral("tiff:RowsPerStrip")).toInt();
    if (plan.kind != OutputKind::Tiff || strip <= 1 || strip > 16 * RowsPerBlock)
        return RowsPerBlock;
    return (RowsPerBlock + strip - 1) / strip * strip;
}

QString failure(const OIIO::ImageOutput &output) {
    const QString text = QString::fromStdString(output.geterror()).simplified();
    return text.isEmpty() ? Text::tr("The picture can't be encoded.")
                          : Text::tr("The picture can't be encoded: %1.").arg(text);
}

} // namespace

Encoded encodePixels(const ImageData &image, const EncodePlan &plan, const QString &path,
                     const RunControl &control) {
    Encoded result;
    if (image.hasAlpha() && plan.channels == 3)
        qInfo("The output format has no transparency; the picture was laid over white.");
    if (plan.kind == OutputKind::Dng)
        return encodeDng(image, plan, path, control);
    if (plan.kind == OutputKind::WebP)
        return encodeWebp(image, plan, path, control);
    if (plan.kind == OutputKind::Jpeg)
        return encodeJpeg(image, plan, path, control);

    const auto output = OIIO::ImageOutput::create(writerName(plan.kind));
    if (!output) {
        result.error = Text::tr("Files of this type can't be written on this system.");
        return result;
    }
    ColourTransform toSrgb;
    if (plan.kind == OutputKind::Bmp && !isSrgb(image.iccProfile())) {
        toSrgb = ColourTransform::toSrgb(image.iccProfile(), Layout::Rgb8, Layout::Rgb8);
        qInfo("The output format has no colour profile; the picture was converted to sRGB.");
    }
    const OIIO::ImageSpec spec = describe(image, plan);
    if (!output->open(path.toStdString(), spec)) {
        result.error = failure(*output);
        return result;
    }
    const int step = blockRows(plan);
    std::vector<std::byte> buffer;
    std::vector<std::byte> converted;
    for (int y = 0; y < image.height(); y += step) {
        if (control.stopped()) {
            result.cancelled = true;
            return result;
        }
        const int rows = std::min(step, image.height() - y);
        const std::byte *from = convertRows(image, y, rows, {plan.bits, plan.channels}, buffer);
        if (toSrgb.isValid()) {
            const auto pixels = std::size_t(image.width()) * std::size_t(rows);
            converted.resize(pixels * 3);
            toSrgb.apply(from, converted.data(), pixels);
            from = converted.data();
        }
        if (!output->write_scanlines(y, y + rows, 0, spec.format, from)) {
            result.error = failure(*output);
            return result;
        }
        control.report(double(y + rows) / image.height(), QStringLiteral("Writing"));
    }
    if (!output->close())
        result.error = failure(*output);
    return result;
}

} // namespace imageio
