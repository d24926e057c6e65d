#pragma once

#include "contracts/FileFormats.h"
#include "contracts/ImageData.h"
#include "contracts/RunControl.h"

#include <QSize>
#include <QVariantMap>

struct ReadRequest {
    QString path;
    bool applyLensCorrection = false;
};

/// Exactly one of: cancelled, a non-empty error (a sentence for the user), or an image.
/// The picture is upright: any orientation of the file has been applied to the pixels.
struct ReadResult {
    bool cancelled = false;
    QString error{};
    std::shared_ptr<ImageData> image{};
    QVariantMap metadata{}; ///< "make", "model", "iso", "orientation", "isRaw", ... where the file has them
    double resolution = 72; ///< pixels per `resolutionUnit`
    int resolutionUnit = 2; ///< 2 inch, 3 centimetre
};

/// `imageData` is the reader's image map, perhaps with `resolution`, `resolutionUnit`, `cropRect`
/// (QRect, pixels) and `rotation` (radians) added. `options` holds attribute names of the image
/// library, such as "Compression" = "jpeg:95" or "oiio:BitsPerSample" = 16.
struct WriteRequest {
    ImageRef image;
    QString inputPath;
    QString outputPath;
    QVariantMap imageData;
    QVariantMap options;
};

/// Exactly one of: cancelled, a non-empty error, or the size of the written file in bytes.
struct WriteResult {
    bool cancelled = false;
    QString error{};
    qint64 fileSize = 0;
    /// Where write() really put the file: formats that can only be read are saved as TIFF beside.
    /// Empty means the path that was asked for.
    QString outputPath{};
};

/// Files in and out. Called on worker threads; calls for different files may overlap; never throws.
class ImageFileBackend {
public:
    virtual ~ImageFileBackend() = default;

    /// What the libraries in use can open and write.
    virtual FileFormats formats() const = 0;

    virtual ReadResult read(const ReadRequest &request, const RunControl &control) = 0;

    /// Pixel size as shown (orientation applied) from the header alone; empty when it is unknown.
    virtual QSize imageSize(const QString &path) = 0;

    /// Atomic: afterwards the output path holds the old file or the whole new one. Makes missing folders.
    virtual WriteResult write(const WriteRequest &request, const RunControl &control) = 0;

    /// The size in bytes that write() would produce, estimated by encoding a sample.
    virtual WriteResult estimate(const WriteRequest &request, const QString &extension,
                                 const RunControl &control) = 0;

    /// Writes a small upright picture of `source` (longest side at most `side`) to `target` as JPEG or PNG.
    virtual WriteResult writeThumbnail(const QString &source, const QString &target, int side,
                                       const RunControl &control) = 0;
};
