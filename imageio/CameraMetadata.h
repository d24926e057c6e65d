#pragma once

#include <QByteArray>
#include <QVariantMap>

namespace Exiv2 {
class Image;
}

namespace imageio {

/// What the text part of a file says. Keys of `fields`, each present only when the file has it:
/// "make", "model", "lens", "dateTime", "software", "artist", "copyright", "uniqueCameraModel",
/// "iso", "exposureTime" (seconds), "fNumber", "focalLength" (millimetres), "focalLength35",
/// "exposureBias", "flash", "latitude" and "longitude" (degrees, north and east positive).
struct CameraMetadata {
    QVariantMap fields;
    int orientation = 1;
    double resolution = 0; ///< 0 when absent
    int resolutionUnit = 2;
    QByteArray icc;
    bool adobeRgb = false; ///< the camera names Adobe RGB without embedding a profile
};

/// Empty when the file has none or it can't be read; never fails.
CameraMetadata readCameraMetadata(const QString &path);

/// Reads a file's metadata up to where it is damaged, and says in the log when it is.
void readIntactPart(Exiv2::Image &image, const QString &path);

/// Prepares the metadata library for use from several threads; called by everything that uses it.
void startMetadataLibrary();

} // namespace imageio
