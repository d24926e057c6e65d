#pragma once

#include "contracts/ImageFileBackend.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>

/// Files and pictures for the tests of this folder.
namespace testio {

using namespace Qt::StringLiterals;

ImageFileBackend &files();

/// A folder that goes with its scope; operator() gives a path in it.
class Folder {
public:
    QString operator()(const char *name) const { return m_dir.filePath(QString::fromUtf8(name)); }
    QString path() const { return m_dir.path(); }
    /// Names of all files, hidden ones included.
    QStringList entries() const;

private:
    QTemporaryDir m_dir;
};

/// A soft picture with edges, a little grain and, with 4 channels, a ramp of transparency.
std::shared_ptr<ImageData> picture(int width, int height, int channels = 3,
                                   SampleType type = SampleType::UInt8);
/// Red, green, blue and white quarters, from the top left in reading order.
std::shared_ptr<ImageData> quarters(int width, int height);
/// Value of a channel scaled to 0 to 255.
double valueAt(const ImageData &image, int x, int y, int channel);
/// "red", "green", "blue", "white" or "other".
std::string colourAt(const ImageData &image, int x, int y);

/// Of the four corners in reading order.
using Corners = std::array<std::string, 4>;
Corners corners(const ImageData &image);

/// Peak signal to noise ratio over all channels; 200 for equal pictures, 0 for different sizes.
double psnr(const ImageData &a, const ImageData &b);
QSize sizeOf(const ImageData &image);

ReadResult read(const QString &path);
WriteResult write(const ImageRef &image, const QString &output, const QVariantMap &options = {},
                  const QVariantMap &imageData = {}, const QString &input = {});

/// A failure here is one of the test; such a picture has one pixel.
ReadResult mustRead(const QString &path);
void mustWrite(const ImageRef &image, const QString &output, const QVariantMap &options = {},
               const QString &input = {});

QByteArray contents(const QString &path);
void setContents(const QString &path, const QByteArray &bytes);

/// Writes one EXIF entry with the metadata library.
void setExif(const QString &path, const std::string &key, const std::string &value);

/// A wide-gamut RGB profile, other than sRGB.
QByteArray wideProfile();

/// A sensor file: RGGB mosaic, 12-bit in 16, with matrix and white balance, whose quarters develop
/// to the linear values given (quarter, channel).
void writeBayerDng(const QString &path, const std::array<std::array<float, 3>, 4> &quarters, int width = 96,
                   int height = 64);

/// Endless saving of a picture over `path`, for a test that kills this process.
int overwriteUntilKilled(const QString &path);

} // namespace testio
