#include "imageio/EncodeOptions.h"

#include "imageio/SupportedFormats.h"
#include "imageio/Text.h"

#include <QDebug>
#include <QFileInfo>

#include <optional>

namespace imageio {

namespace {

std::optional<OutputKind> outputKind(const QString &extension) {
    if (extension == u"dng")
        return OutputKind::Dng;
    switch (kindOfExtension(extension)) {
    case FileKind::Jpeg:
        return OutputKind::Jpeg;
    case FileKind::Png:
        return OutputKind::Png;
    case FileKind::Tiff:
        return OutputKind::Tiff;
    case FileKind::WebP:
        return OutputKind::WebP;
    case FileKind::Bmp:
        return OutputKind::Bmp;
    default:
        return std::nullopt;
    }
}

/// Writers store unknown attributes as text in the file, so only those meant for them pass.
bool isWriterAttribute(const QString &key) {
    for (const char *prefix : {"jpeg:", "png:", "tiff:", "webp:", "bmp:", "oiio:"}) {
        if (key.startsWith(QLatin1String(prefix), Qt::CaseInsensitive))
            return true;
    }
    return false;
}

int quality(const QString &compression) {
    return compression.section(QLatin1Char(':'), 1).toInt();
}

void setDefault(QVariantMap &attributes, const QString &key, const QVariant &value) {
    if (!attributes.contains(key))
        attributes.insert(key, value);
}

void addDefaults(EncodePlan &plan) {
    constexpr int DefaultQuality = 95;
    constexpr int FullChromaQuality = 90;
    QVariantMap &a = plan.attributes;
    const QString compression = QStringLiteral("compression");
    switch (plan.kind) {
    case OutputKind::Jpeg:
        setDefault(a, compression, QStringLiteral("jpeg:%1").arg(DefaultQuality));
        if (quality(a.value(compression).toString()) >= FullChromaQuality)
            setDefault(a, QStringLiteral("jpeg:subsampling"), QStringLiteral("4:4:4"));
        break;
    case OutputKind::Png:
        setDefault(a, QStringLiteral("png:compressionLevel"), 2);
        break;
    case OutputKind::Tiff:
        setDefault(a, compression, QStringLiteral("none"));
        break;
    case OutputKind::WebP:
        setDefault(a, compression, QStringLiteral("webp:%1").arg(DefaultQuality));
        break;
    case OutputKind::Dng: {
        const QString asked =
            a.value(QStringLiteral("compressed"), a.value(compression)).toString().toLower();
        plan.compressed = !asked.isEmpty() && asked != u"0" && asked != u"none" && asked != u"false";
        break;
    }
    case OutputKind::Bmp:
        break;
    }
}

} // namespace

EncodePlan planEncoding(const ImageData &image, const QString &extension, const QVariantMap &options) {
    EncodePlan plan;
    const auto kind = outputKind(extension);
    if (!kind) {
        plan.error = extension.isEmpty()
                         ? Text::tr("The output name has no extension that tells its format.")
                         : Text::tr("Pictures can't be written as \".%1\" files.").arg(extension);
        return plan;
    }
    plan.kind = *kind;
    int depth = 0;
    QVariant compression;
    for (const auto &[key, value] : options.asKeyValueRange()) {
        if (key.compare(QLatin1String("oiio:BitsPerSample"), Qt::CaseInsensitive) == 0)
            depth = value.toInt();
        else if (key.compare(QLatin1String("compression"), Qt::CaseInsensitive) == 0)
            compression = value;
        else if (isWriterAttribute(key) || (kind == OutputKind::Dng && key == u"compressed"))
            plan.attributes.insert(key, value);
    }
    // That of another format is no use: the caller may not know which one is really written.
    const bool jpegQuality = compression.toString().startsWith(QLatin1String("jpeg:"));
    if (compression.isValid() && jpegQuality == (kind == OutputKind::Jpeg))
        plan.attributes.insert(QStringLiteral("compression"), compression);
    const bool wideKind = kind == OutputKind::Png || kind == OutputKind::Tiff;
    if (kind == OutputKind::Dng)
        plan.bits = 16;
    else if (wideKind)
        plan.bits = depth == 8 || depth == 16 ? depth : image.bitDepth();
    const bool keepsAlpha = wideKind || kind == OutputKind::WebP;
    plan.channels = image.hasAlpha() && keepsAlpha ? 4 : 3;
    addDefaults(plan);
    return plan;
}

QString writablePath(const QString &outputPath) {
    const QFileInfo info(outputPath);
    if (kindOfExtension(info.suffix().toLower()) != FileKind::Heif)
        return outputPath;
    const QString base = outputPath.chopped(info.suffix().size() + 1);
    QString path = base + QStringLiteral(".tif");
    for (int i = 1; QFileInfo::exists(path); ++i)
        path = QStringLiteral("%1-%2.tif").arg(base).arg(i);
    qInfo().noquote() << QStringLiteral("Files of type %1 can't be written; saving as TIFF instead: %2")
                             .arg(info.suffix().toUpper(), path);
    return path;
}

QString formatExtension(const QString &outputPath, const QString &inputPath) {
    const QString suffix = QFileInfo(outputPath).suffix().toLower();
    if (!suffix.isEmpty())
        return suffix;
    switch (probeFile(inputPath).kind) {
    case FileKind::Jpeg:
        return QStringLiteral("jpg");
    case FileKind::Png:
        return QStringLiteral("png");
    case FileKind::WebP:
        return QStringLiteral("webp");
    case FileKind::Bmp:
        return QStringLiteral("bmp");
    case FileKind::Tiff:
    case FileKind::Heif:
    case FileKind::Raw:
        return QStringLiteral("tif");
    case FileKind::Unknown:
        break;
    }
    return {};
}

} // namespace imageio
