#pragma once

#include "engine/EngineBackend.h"

#include <QImage>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

/// Pictures made by rule, the same on every machine, and an engine with the shipped models.
namespace Pictures {

struct Format {
    const char *name;
    int channels;
    SampleType type;
};
inline constexpr Format formats[] = {{"rgb 8", 3, SampleType::UInt8},
                                     {"rgba 8", 4, SampleType::UInt8},
                                     {"rgb 16", 3, SampleType::UInt16},
                                     {"rgba 16", 4, SampleType::UInt16}};

using Pixel = std::array<double, 4>; ///< R G B A, 0 to 1
std::shared_ptr<ImageData> make(int width, int height, int channels, SampleType type,
                                const std::function<Pixel(int, int)> &pixel);

/// Photo-like: soft shading, edges at all angles, fine texture, some colour; alpha a soft disk.
std::shared_ptr<ImageData> scene(int width, int height, int channels = 3,
                                 SampleType type = SampleType::UInt8);

/// The same value, 0 to 1, in R, G and B of an 8-bit picture.
std::shared_ptr<ImageData> grey(int width, int height, const std::function<double(int, int)> &value);

/// Each sample changed by `change(value, x, y, channel)`, values 0 to 1; alpha is left alone.
std::shared_ptr<ImageData> changed(const ImageData &image,
                                   const std::function<double(double, int, int, int)> &change);
/// White Gaussian noise, standard deviation on the 8-bit scale.
std::shared_ptr<ImageData> noisy(const ImageData &image, double deviation);
/// Gaussian blur, standard deviation in pixels.
std::shared_ptr<ImageData> blurred(const ImageData &image, double sigma);
/// Stored as JPEG and read again.
std::shared_ptr<ImageData> compressed(const ImageData &image, int quality);
std::shared_ptr<ImageData> fromImage(const QImage &picture, const QRect &part);

double sample(const ImageData &image, int x, int y, int channel);
/// Peak signal-to-noise ratio of R, G and B in decibels.
double psnr(const ImageData &a, const ImageData &b);
/// Root mean square difference of R, G and B on the 8-bit scale.
double difference(const ImageData &a, const ImageData &b);
/// Empty when `part` equals the part of `whole` that begins at x, y bit for bit; else where not.
std::string mismatch(const ImageData &part, const ImageData &whole, int x, int y);

} // namespace Pictures

struct Engine {
    explicit Engine(const EngineOptions &options = {}, const QString &models = QStringLiteral(ORVANE_MODELS));

    /// One filter over the whole picture, or over `region`.
    ProcResult run(const ImageRef &image, const QString &category, const QString &model,
                   const QVariantMap &params, const QRect &region = {}, const RunControl &control = {});
    ProcResult run(ProcRequest request, const RunControl &control = {});
    /// A request over the whole picture that exports; each picture gets a uid of its own.
    static ProcRequest request(const ImageRef &image);
    static void add(ProcRequest &request, const QString &name, const QString &category, const QString &model,
                    const QVariantMap &params, bool enabled = true);

    std::unique_ptr<ProcessingBackend> backend;
    QVariantMap catalogue;
};

/// One engine with the shipped models for all tests without options of their own: its networks are loaded
/// once. Its cache is empty when it is handed out.
Engine &shippedEngine();

/// A model's parameters: each one's default, min and max.
QVariantMap rangesOf(const QVariantMap &catalogue, const QString &category, const QString &model);

/// A model of the shipped catalogue with every parameter in the middle of its range, scaled up
/// where it can be.
struct ModelCase {
    QString category;
    QString model;
    QVariantMap params;
    std::string label() const { return (category + u'/' + model).toStdString(); }
};
std::vector<ModelCase> everyModel(const QVariantMap &catalogue);

/// What this program wrote to std::cerr so far; main() keeps it.
std::string cerrText();

/// The lines logged between construction and lines().
class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    QStringList lines() const;
    int count(const QString &part) const { return int(lines().filter(part).size()); }
};
