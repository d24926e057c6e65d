#include "Harness.h"

#include <QBuffer>

#include <cmath>
#include <mutex>
#include <random>

using namespace Qt::StringLiterals;

namespace {

void setSample(ImageData &image, int x, int y, int channel, double value) {
    const std::size_t i = std::size_t(x) * std::size_t(image.channels()) + std::size_t(channel);
    const double v = std::clamp(value, 0.0, 1.0);
    if (image.type() == SampleType::UInt8)
        image.samples<std::uint8_t>(y)[i] = std::uint8_t(v * 255 + 0.5);
    else
        image.samples<std::uint16_t>(y)[i] = std::uint16_t(v * 65535 + 0.5);
}

/// Value noise of a lattice, smooth, 0 to 1.
double lattice(double x, double y, unsigned seed) {
    const auto hash = [seed](int i, int j) {
        unsigned h = unsigned(i) * 374761393u + unsigned(j) * 668265263u + seed * 2246822519u;
        h = (h ^ (h >> 13)) * 1274126177u;
        return double((h ^ (h >> 16)) & 0xffffu) / 65535;
    };
    const int i = int(std::floor(x)), j = int(std::floor(y));
    const auto ease = [](double t) { return t * t * (3 - 2 * t); };
    const double u = ease(x - i), v = ease(y - j);
    return (hash(i, j) * (1 - u) + hash(i + 1, j) * u) * (1 - v) +
           (hash(i, j + 1) * (1 - u) + hash(i + 1, j + 1) * u) * v;
}

QtMessageHandler previousHandler = nullptr;
std::mutex logMutex;
QStringList logLines;

} // namespace

std::shared_ptr<ImageData> Pictures::make(int width, int height, int channels, SampleType type,
                                          const std::function<Pixel(int, int)> &pixel) {
    auto image = std::make_shared<ImageData>(width, height, channels, type);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const Pixel p = pixel(x, y);
            for (int c = 0; c < channels; ++c)
                setSample(*image, x, y, c, p[std::size_t(c)]);
        }
    return image;
}

std::shared_ptr<ImageData> Pictures::grey(int width, int height,
                                          const std::function<double(int, int)> &value) {
    return make(width, height, 3, SampleType::UInt8, [&](int x, int y) -> Pixel {
        const double v = value(x, y);
        return {v, v, v, 1};
    });
}

std::shared_ptr<ImageData> Pictures::scene(int width, int height, int channels, SampleType type) {
    return make(width, height, channels, type, [=](int x, int y) -> Pixel {
        const double shade = 0.25 + 0.5 * lattice(x / 60.0, y / 60.0, 1);
        const double cells = lattice(x / 14.0, y / 14.0, 2) > 0.55 ? 0.22 : 0;
        const double texture = y > height / 2 ? 0.12 * (lattice(x / 2.0, y / 2.0, 3) - 0.5) : 0;
        const double stripe = std::sin((x + 0.6 * y) * 0.25) > 0.7 ? -0.15 : 0;
        const double tint = lattice(x / 40.0, y / 40.0, 4) - 0.5;
        const double v = shade + cells + texture + stripe;
        const double r = std::hypot(x - width / 2.0, y - height / 2.0) / std::min(width, height);
        return {v + 0.15 * tint, v, v - 0.2 * tint, std::clamp(1.5 - 2 * r, 0.0, 1.0)};
    });
}

std::shared_ptr<ImageData> Pictures::changed(const ImageData &image,
                                             const std::function<double(double, int, int, int)> &change) {
    return make(image.width(), image.height(), image.channels(), image.type(), [&](int x, int y) {
        Pixel p{};
        for (int c = 0; c < image.channels(); ++c) {
            const double v = sample(image, x, y, c);
            p[std::size_t(c)] = c < 3 ? change(v, x, y, c) : v;
        }
        return p;
    });
}

std::shared_ptr<ImageData> Pictures::noisy(const ImageData &image, double deviation) {
    std::mt19937 random(7);
    std::normal_distribution<double> normal(0, deviation / 255);
    return changed(image, [&](double v, int, int, int) { return v + normal(random); });
}

std::shared_ptr<ImageData> Pictures::blurred(const ImageData &image, double sigma) {
    const int radius = int(std::ceil(3 * sigma));
    std::vector<double> weights;
    for (int d = -radius; d <= radius; ++d)
        weights.push_back(std::exp(-d * d / (2 * sigma * sigma)));
    return changed(image, [&](double, int x, int y, int c) {
        double sum = 0, total = 0;
        for (int j = -radius; j <= radius; ++j)
            for (int i = -radius; i <= radius; ++i) {
                const double w = weights[std::size_t(i + radius)] * weights[std::size_t(j + radius)];
                sum += w * sample(image, std::clamp(x + i, 0, image.width() - 1),
                                  std::clamp(y + j, 0, image.height() - 1), c);
                total += w;
            }
        return sum / total;
    });
}

std::shared_ptr<ImageData> Pictures::compressed(const ImageData &image, int quality) {
    QImage picture(image.width(), image.height(), QImage::Format_RGB888);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            picture.setPixelColor(x, y,
                                  QColor::fromRgbF(float(sample(image, x, y, 0)),
                                                   float(sample(image, x, y, 1)),
                                                   float(sample(image, x, y, 2))));
    QBuffer file;
    file.open(QIODevice::ReadWrite);
    picture.save(&file, "JPEG", quality);
    picture = QImage::fromData(file.data(), "JPEG");
    return fromImage(picture, picture.rect());
}

std::shared_ptr<ImageData> Pictures::fromImage(const QImage &picture, const QRect &part) {
    return make(part.width(), part.height(), 3, SampleType::UInt8, [&](int x, int y) -> Pixel {
        const QColor colour = picture.pixelColor(part.topLeft() + QPoint(x, y));
        return {double(colour.redF()), double(colour.greenF()), double(colour.blueF()), 1};
    });
}

double Pictures::sample(const ImageData &image, int x, int y, int channel) {
    const std::size_t i = std::size_t(x) * std::size_t(image.channels()) + std::size_t(channel);
    return image.type() == SampleType::UInt8 ? image.samples<std::uint8_t>(y)[i] / 255.0
                                             : image.samples<std::uint16_t>(y)[i] / 65535.0;
}

double Pictures::difference(const ImageData &a, const ImageData &b) {
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            for (int c = 0; c < 3; ++c)
                sum += std::pow(sample(a, x, y, c) - sample(b, x, y, c), 2);
    return 255 * std::sqrt(sum / (3.0 * a.width() * a.height()));
}

double Pictures::psnr(const ImageData &a, const ImageData &b) {
    return 20 * std::log10(255 / std::max(1e-9, difference(a, b)));
}

std::string Pictures::mismatch(const ImageData &part, const ImageData &whole, int x, int y) {
    const std::size_t pixel = whole.rowBytes() / std::size_t(whole.width());
    if (x + part.width() > whole.width() || y + part.height() > whole.height() ||
        part.channels() != whole.channels() || part.type() != whole.type())
        return "shapes differ";
    for (int row = 0; row < part.height(); ++row) {
        const std::byte *other = whole.row(y + row) + pixel * std::size_t(x);
        const auto pair = std::mismatch(part.row(row), part.row(row) + part.rowBytes(), other);
        if (pair.second != other + part.rowBytes())
            return "row " + std::to_string(y + row) + ", pixel " +
                   std::to_string(x + int(std::size_t(pair.second - other) / pixel));
    }
    return {};
}

Engine::Engine(const EngineOptions &options, const QString &models)
    : backend(makeEngineBackend(options)) {
    catalogue = backend->catalogue(models);
}

QVariantMap rangesOf(const QVariantMap &catalogue, const QString &category, const QString &model) {
    return catalogue[category].toMap()[model].toMap()[u"gui"_s].toMap()[u"parameters"_s].toMap();
}

Engine &shippedEngine() {
    static Engine engine;
    engine.backend->clearCache({});
    return engine;
}

ProcRequest Engine::request(const ImageRef &image) {
    ProcRequest request;
    request.input.uid = QString::number(quintptr(image.get())); // measured once by each engine
    request.input.image = image;
    if (image)
        request.region = QRect(0, 0, image->width(), image->height());
    request.full = true;
    return request;
}

void Engine::add(ProcRequest &request, const QString &name, const QString &category, const QString &model,
                 const QVariantMap &params, bool enabled) {
    request.filterOrder.append(name);
    request.params.insert(name, QVariantMap{{u"category"_s, category},
                                            {u"model"_s, model},
                                            {u"enabled"_s, enabled},
                                            {u"params"_s, params}});
}

ProcResult Engine::run(ProcRequest request, const RunControl &control) {
    return backend->process(request, control);
}

ProcResult Engine::run(const ImageRef &image, const QString &category, const QString &model,
                       const QVariantMap &params, const QRect &region, const RunControl &control) {
    ProcRequest request = Engine::request(image);
    if (!region.isNull())
        request.region = region;
    add(request, category, category, model, params);
    return run(request, control);
}

std::vector<ModelCase> everyModel(const QVariantMap &catalogue) {
    std::vector<ModelCase> cases;
    for (const auto &[category, models] : catalogue.asKeyValueRange()) {
        for (const QString &model : models.toMap().keys()) {
            ModelCase one{category, model, {}};
            const QVariantMap parameters = rangesOf(catalogue, category, model);
            for (auto p = parameters.begin(); p != parameters.end(); ++p) {
                const QVariantMap range = p->toMap();
                one.params[p.key()] =
                    range.contains(u"max"_s)
                        ? QVariant((range[u"min"_s].toDouble() + range[u"max"_s].toDouble()) / 2)
                        : range[u"default"_s];
            }
            if (one.category == u"Enhance"_s)
                one.params[u"scale"_s] = 1.7;
            cases.push_back(one);
            if (one.params.contains(u"isLens"_s)) {
                one.params[u"isLens"_s] = true;
                cases.push_back(one);
            }
        }
    }
    return cases;
}

LogCapture::LogCapture() {
    logLines.clear();
    previousHandler = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &line) {
        const std::lock_guard lock(logMutex);
        logLines.append(line);
    });
}

LogCapture::~LogCapture() {
    qInstallMessageHandler(previousHandler);
}

QStringList LogCapture::lines() const {
    const std::lock_guard lock(logMutex);
    return logLines;
}
