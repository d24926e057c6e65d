#include "Scenes.h"

#include "engine/analysis/Smoothing.h"

#include <QBuffer>
#include <QDir>
#include <QImage>

#include <cmath>
#include <numbers>
#include <random>

namespace Scenes {

namespace {

template <typename T>
void fill(ImageData &target, const Picture &picture, float top) {
    const auto channels = std::size_t(target.channels());
    for (int y = 0; y < target.height(); ++y) {
        const auto row = target.samples<T>(y);
        for (int x = 0; x < target.width(); ++x) {
            for (std::size_t c = 0; c < channels; ++c) {
                const float value = c < 3 ? picture[c].at(x, y) : float((x + y) % 2);
                row[std::size_t(x) * channels + c] = T(std::clamp(value * top + 0.5f, 0.0f, top));
            }
        }
    }
}

Picture fromImage(const QImage &source) {
    const QImage rgb = source.convertToFormat(QImage::Format_RGB888);
    return painted(rgb.width(), rgb.height(), [&](int x, int y, std::size_t c) {
        return float(rgb.constScanLine(y)[3 * x + int(c)]) / 255;
    });
}

QImage toImage(const Picture &picture) {
    QImage rgb(picture[0].width, picture[0].height, QImage::Format_RGB888);
    for (int y = 0; y < rgb.height(); ++y) {
        for (int x = 0; x < rgb.width(); ++x) {
            for (std::size_t c = 0; c < 3; ++c)
                rgb.scanLine(y)[3 * x + int(c)] =
                    uchar(std::clamp(picture[c].at(x, y) * 255 + 0.5f, 0.0f, 255.0f));
        }
    }
    return rgb;
}

Plane normalPlane(int width, int height, std::mt19937 &random) {
    std::normal_distribution<float> normal;
    Plane plane(width, height);
    for (float &value : plane.values)
        value = normal(random);
    return plane;
}

} // namespace

Picture painted(int width, int height, const std::function<float(int, int, std::size_t)> &value) {
    Picture picture;
    for (std::size_t c = 0; c < 3; ++c) {
        picture[c] = Plane(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                picture[c].at(x, y) = value(x, y, c);
    }
    return picture;
}

Picture flat(int width, int height, const std::array<float, 3> &colour) {
    return painted(width, height, [&](int, int, std::size_t c) { return colour[c]; });
}

Picture still(int width, int height) {
    // Drawn at four times the size and averaged, so that edges are as sharp as a good lens gives.
    constexpr int Fine = 4;
    const auto value = [width, height](double x, double y, std::size_t c) {
        const double slope = 0.35 + 0.25 * x / width + 0.1 * y / height - 0.05 * double(c);
        for (int disc = 0; disc < 5; ++disc) {
            const double dx = x - width * (0.15 + 0.17 * disc);
            const double dy = y - height * (0.25 + 0.1 * (disc % 3));
            if (std::hypot(dx, dy) < 18 + 9 * disc)
                return disc % 2 ? 0.75 - 0.1 * double(c) : 0.2 + 0.1 * double(c);
        }
        if (y > height * 0.62 && x < width * 0.5) {
            const double turned = x * 0.8 + y * 0.6;
            return std::fmod(turned, 46) < 17 ? 0.25 : 0.7;
        }
        if (y > height * 0.7 && x > width * 0.75)
            return 0.5 + 0.12 * std::sin(x * 0.9) * std::sin(y * 0.7) + 0.06 * std::sin(x * 0.31 + y * 0.17);
        return slope;
    };
    return painted(width, height, [&](int x, int y, std::size_t c) {
        double sum = 0;
        for (int j = 0; j < Fine; ++j)
            for (int i = 0; i < Fine; ++i)
                sum += value(x + (i + 0.5) / Fine, y + (j + 0.5) / Fine, c);
        return float(sum / (Fine * Fine));
    });
}

Picture leaves(int width, int height) {
    constexpr int Fine = 3, Count = 6000;
    constexpr double Smallest = 1.5, Largest = 90;
    std::mt19937 random(7);
    const auto next = [&random](double most) {
        return most * double(random()) / double(std::mt19937::max());
    };
    Picture large = flat(width * Fine, height * Fine, {0.5f, 0.5f, 0.5f});
    for (int i = 0; i < Count; ++i) {
        // As many of each size as cover the same area.
        const double radius = Fine / std::sqrt(1 / (Largest * Largest) + next(1 / (Smallest * Smallest)));
        const double x = next(large[0].width);
        const double y = next(large[0].height);
        const double grey = 0.15 + next(0.7);
        for (int row = std::max(0, int(y - radius)); row < std::min(large[0].height, int(y + radius));
             ++row) {
            const double half = std::sqrt(std::max(0.0, radius * radius - (row - y) * (row - y)));
            for (int at = std::max(0, int(x - half)); at < std::min(large[0].width, int(x + half)); ++at) {
                for (std::size_t c = 0; c < 3; ++c)
                    large[c].at(at, row) = float(grey + 0.04 * double(c));
            }
        }
    }
    return painted(width, height, [&](int x, int y, std::size_t c) {
        float sum = 0;
        for (int j = 0; j < Fine; ++j)
            for (int i = 0; i < Fine; ++i)
                sum += large[c].at(x * Fine + i, y * Fine + j) / (Fine * Fine);
        return sum;
    });
}

Picture noisy(const Picture &picture, double sigma) {
    return grainy(picture, sigma, 0);
}

Picture grainy(const Picture &picture, double sigma, double grain) {
    std::mt19937 random(1);
    Picture result = picture;
    for (Plane &plane : result) {
        const Plane noise = Analysis::smoothed(normalPlane(plane.width, plane.height, random), float(grain));
        double square = 0;
        for (const float value : noise.values)
            square += double(value) * double(value);
        const double scale = sigma / 255 / std::sqrt(square / double(noise.values.size()));
        for (std::size_t i = 0; i < plane.values.size(); ++i)
            plane.values[i] += float(scale) * noise.values[i];
    }
    return result;
}

Picture blotched(const Picture &picture, double sigma, double width) {
    const Plane &first = picture[0];
    const Picture noise = grainy(flat(first.width, first.height, {0, 0, 0}), 1, width);
    Picture result = picture;
    // What the luma takes away of three independent channels leaves 0.883 of their deviation.
    for (std::size_t i = 0; i < first.values.size(); ++i) {
        const float luma = Analysis::LumaWeights[0] * noise[0].values[i] +
                           Analysis::LumaWeights[1] * noise[1].values[i] +
                           Analysis::LumaWeights[2] * noise[2].values[i];
        for (std::size_t c = 0; c < 3; ++c)
            result[c].values[i] += float(sigma / 0.883) * (noise[c].values[i] - luma);
    }
    return result;
}

Picture tinted(const Picture &picture, const std::array<float, 3> &gains) {
    return painted(picture[0].width, picture[0].height,
                   [&](int x, int y, std::size_t c) { return picture[c].at(x, y) * gains[c]; });
}

Picture compressed(const Picture &picture, int quality) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    toImage(picture).save(&buffer, "JPG", quality);
    return fromImage(QImage::fromData(bytes));
}

std::shared_ptr<ImageData> image(const Picture &picture, SampleType type, int channels) {
    auto result = std::make_shared<ImageData>(picture[0].width, picture[0].height, channels, type);
    if (type == SampleType::UInt8)
        fill<std::uint8_t>(*result, picture, 255);
    else
        fill<std::uint16_t>(*result, picture, 65535);
    return result;
}

ImageStatistics measured(const Picture &picture) {
    return measureImage(*image(picture), {});
}

double channelNoise(const ImageStatistics &statistics) {
    return 255.0 * double(statistics.noise[0] + statistics.noise[1] + statistics.noise[2]) / 3;
}

QStringList photographs() {
    const QDir folder(QStringLiteral("/usr/share/backgrounds/mate/nature"));
    QStringList paths;
    for (const QString &name : folder.entryList({QStringLiteral("*.jpg")}, QDir::Files, QDir::Name))
        paths << folder.filePath(name);
    return paths;
}

Picture photograph(const QString &path) {
    const QImage whole(path);
    const QImage reduced = whole.scaled(whole.width() * 2 / 5, whole.height() * 2 / 5, Qt::IgnoreAspectRatio,
                                        Qt::SmoothTransformation);
    const QSize size = reduced.size().boundedTo({640, 448});
    const QPoint corner((reduced.width() - size.width()) / 2, (reduced.height() - size.height()) / 2);
    return fromImage(reduced.copy(QRect(corner, size)));
}

} // namespace Scenes
