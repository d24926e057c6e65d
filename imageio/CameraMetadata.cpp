#include "imageio/CameraMetadata.h"

#include <exiv2/exiv2.hpp>

#include <QDebug>
#include <QFile>

#include <cmath>
#include <mutex>

namespace imageio {

namespace {

using Finder = Exiv2::ExifData::const_iterator (*)(const Exiv2::ExifData &);

class Reader {
public:
    explicit Reader(const Exiv2::ExifData &exif)
        : m_exif(exif) {}

    const Exiv2::Exifdatum *find(const char *key) const {
        const auto it = m_exif.findKey(Exiv2::ExifKey(key));
        return it == m_exif.end() || it->count() == 0 ? nullptr : &*it;
    }
    const Exiv2::Exifdatum *find(Finder finder) const {
        const auto it = finder(m_exif);
        return it == m_exif.end() || it->count() == 0 ? nullptr : &*it;
    }
    template <typename Key>
    QString text(Key key, bool interpreted = false) const {
        const Exiv2::Exifdatum *datum = find(key);
        if (!datum)
            return {};
        try {
            const std::string value = interpreted ? datum->print(&m_exif) : datum->toString();
            return QString::fromStdString(value).remove(QChar(u'\0')).simplified();
        } catch (const std::exception &) {
            return {}; // some interpreters throw at values they don't know
        }
    }
    template <typename Key>
    double number(Key key, std::size_t index = 0) const {
        const Exiv2::Exifdatum *datum = find(key);
        if (!datum || index >= datum->count())
            return NAN;
        const auto [upper, lower] = datum->toRational(index);
        if (lower == 0)
            return NAN;
        return double(upper) / lower;
    }
    double degrees(const char *key, const char *referenceKey, QChar negative) const {
        const double sum = number(key, 0) + number(key, 1) / 60 + number(key, 2) / 3600;
        return text(referenceKey).startsWith(negative) ? -sum : sum;
    }

private:
    const Exiv2::ExifData &m_exif;
};

void setText(QVariantMap &fields, const QString &key, const QString &value) {
    if (!value.isEmpty() && !value.startsWith(QLatin1Char('(')))
        fields.insert(key, value);
}

void setNumber(QVariantMap &fields, const QString &key, double value, double least) {
    if (std::isfinite(value) && value >= least)
        fields.insert(key, value);
}

void readFields(const Reader &exif, QVariantMap &fields) {
    setText(fields, QStringLiteral("make"), exif.text("Exif.Image.Make"));
    setText(fields, QStringLiteral("model"), exif.text("Exif.Image.Model"));
    setText(fields, QStringLiteral("uniqueCameraModel"), exif.text("Exif.Image.UniqueCameraModel"));
    setText(fields, QStringLiteral("software"), exif.text("Exif.Image.Software"));
    setText(fields, QStringLiteral("artist"), exif.text("Exif.Image.Artist"));
    setText(fields, QStringLiteral("copyright"), exif.text("Exif.Image.Copyright"));
    QString lens = exif.text("Exif.Photo.LensModel");
    if (lens.isEmpty())
        lens = exif.text(&Exiv2::lensName, true);
    setText(fields, QStringLiteral("lens"), lens);
    QString when = exif.text("Exif.Photo.DateTimeOriginal");
    if (when.isEmpty())
        when = exif.text("Exif.Image.DateTime");
    setText(fields, QStringLiteral("dateTime"), when);

    setNumber(fields, QStringLiteral("iso"), exif.number(&Exiv2::isoSpeed), 1);
    setNumber(fields, QStringLiteral("exposureTime"), exif.number(&Exiv2::exposureTime), 1e-9);
    setNumber(fields, QStringLiteral("fNumber"), exif.number(&Exiv2::fNumber), 0.01);
    setNumber(fields, QStringLiteral("focalLength"), exif.number(&Exiv2::focalLength), 0.01);
    setNumber(fields, QStringLiteral("focalLength35"), exif.number("Exif.Photo.FocalLengthIn35mmFilm"), 0.01);
    setNumber(fields, QStringLiteral("exposureBias"), exif.number("Exif.Photo.ExposureBiasValue"), -100);
    setNumber(fields, QStringLiteral("flash"), exif.number("Exif.Photo.Flash"), 0);
    setNumber(fields, QStringLiteral("latitude"),
              exif.degrees("Exif.GPSInfo.GPSLatitude", "Exif.GPSInfo.GPSLatitudeRef", u'S'), -90);
    setNumber(fields, QStringLiteral("longitude"),
              exif.degrees("Exif.GPSInfo.GPSLongitude", "Exif.GPSInfo.GPSLongitudeRef", u'W'), -180);
}

void readExif(const Exiv2::ExifData &data, CameraMetadata &result) {
    const Reader exif(data);
    readFields(exif, result.fields);
    const double orientation = exif.number("Exif.Image.Orientation");
    if (orientation >= 1 && orientation <= 8)
        result.orientation = int(orientation);
    const double resolution = exif.number("Exif.Image.XResolution");
    const double unit = exif.number("Exif.Image.ResolutionUnit");
    if (std::isfinite(resolution) && resolution > 1 && (unit == 2 || unit == 3)) {
        result.resolution = resolution;
        result.resolutionUnit = int(unit);
    }
    const double space = exif.number("Exif.Photo.ColorSpace");
    result.adobeRgb = space == 2 || (space == 65535 && exif.text("Exif.Iop.InteroperabilityIndex") == u"R03");
}

} // namespace

void startMetadataLibrary() {
    static std::once_flag once;
    std::call_once(once, [] {
        static std::mutex mutex;
        const auto lock = [](void *data, bool take) {
            auto *m = static_cast<std::mutex *>(data);
            take ? m->lock() : m->unlock();
        };
        Exiv2::XmpParser::initialize(lock, &mutex);
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
    });
}

void readIntactPart(Exiv2::Image &image, const QString &path) {
    try {
        image.readMetadata();
    } catch (const std::exception &e) {
        qWarning().noquote() << "The metadata or the colour profile is damaged and was left out in part:"
                             << path << e.what();
    }
}

CameraMetadata readCameraMetadata(const QString &path) {
    startMetadataLibrary();
    CameraMetadata result;
    try {
        const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
        readIntactPart(*image, path);
        if (image->iccProfileDefined()) {
            const Exiv2::DataBuf &icc = image->iccProfile();
            result.icc = QByteArray(reinterpret_cast<const char *>(icc.c_data()), qsizetype(icc.size()));
        }
        readExif(image->exifData(), result);
    } catch (const std::exception &e) {
        qInfo("The metadata can't be read: %s", e.what());
    }
    return result;
}

} // namespace imageio
