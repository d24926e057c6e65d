#include "Degradations.h"

#include "Samples.h"

#include <opencv2/imgproc.hpp>

#include <cmath>

namespace {

double deviation(const cv::Mat &noise) {
    cv::Scalar mean, sigma;
    cv::meanStdDev(noise, mean, sigma);
    return std::sqrt((sigma[0] * sigma[0] + sigma[1] * sigma[1] + sigma[2] * sigma[2]) / 3);
}

Degraded white(const Photograph &p, double sigma, cv::RNG &random) {
    const cv::Mat noise = whiteNoise(p.clean.size(), random) * sigma;
    return {p.clean, stored(real(p.clean) + noise), sigma};
}

/// Noise that has the correlation of white noise smoothed by `grain` pixels.
Degraded grain(const Photograph &p, double sigma, double size, cv::RNG &random) {
    cv::Mat noise;
    cv::GaussianBlur(whiteNoise(p.clean.size(), random), noise, {}, size);
    noise *= sigma / deviation(noise);
    return {p.clean, stored(real(p.clean) + noise), sigma};
}

/// Photon and readout noise in linear light, correlated by demosaicing, with colour in coarser
/// blotches, then encoded and compressed: what a camera's own JPEG has.
Degraded camera(const Photograph &p, double strength, int quality, cv::RNG &random) {
    cv::Mat linear = real(p.clean) / 255;
    cv::pow(linear, 2.2, linear);
    cv::Mat spread;
    cv::sqrt(linear * strength + cv::Scalar::all(strength * strength * 0.2), spread);
    cv::Mat fine, coarse;
    cv::GaussianBlur(whiteNoise(p.clean.size(), random), fine, {}, 0.5);
    cv::GaussianBlur(whiteNoise(p.clean.size(), random), coarse, {}, 1.2);
    const cv::Mat noise = fine / deviation(fine) * 0.9 + coarse / deviation(coarse) * 0.45;
    cv::Mat encoded;
    cv::pow(cv::max(linear + spread.mul(noise), 0), 1 / 2.2, encoded);
    encoded = cv::min(encoded, 1) * 255;
    // Against the same picture compressed, so that what compression takes from texture isn't noise.
    const cv::Mat picture = withJpeg(stored(encoded), quality);
    return {p.clean, picture, deviation(real(picture) - real(withJpeg(p.clean, quality)))};
}

Degraded reduced(const Photograph &p, double sigma, int method, cv::RNG &random) {
    const cv::Mat noise = whiteNoise(p.larger.size(), random) * sigma;
    cv::Mat clean, picture;
    cv::resize(p.larger, clean, p.clean.size(), 0, 0, method);
    cv::resize(stored(real(p.larger) + noise), picture, p.clean.size(), 0, 0, method);
    cv::Mat alone;
    cv::resize(noise, alone, p.clean.size(), 0, 0, method);
    return {clean, picture, deviation(alone)};
}

Degraded compressedNoise(const Photograph &p, double sigma, int quality, cv::RNG &random) {
    const cv::Mat picture = withJpeg(white(p, sigma, random).picture, quality);
    return {p.clean, picture, deviation(real(picture) - real(withJpeg(p.clean, quality)))};
}

cv::Mat filtered(const cv::Mat &picture, const cv::Mat &kernel) {
    cv::Mat result;
    cv::filter2D(real(picture), result, CV_32F, kernel / cv::sum(kernel)[0], {-1, -1}, 0, cv::BORDER_REFLECT);
    return result;
}

cv::Mat disc(double radius) {
    constexpr int Fine = 8;
    const int reach = int(std::ceil(radius));
    cv::Mat large = cv::Mat::zeros((2 * reach + 1) * Fine, (2 * reach + 1) * Fine, CV_32F);
    cv::circle(large, {large.cols / 2, large.rows / 2}, int(radius * Fine), 1, cv::FILLED);
    cv::Mat kernel;
    cv::resize(large, kernel, {2 * reach + 1, 2 * reach + 1}, 0, 0, cv::INTER_AREA);
    return kernel;
}

cv::Mat smear(int length, double degrees) {
    constexpr int Fine = 8;
    const int side = length | 1;
    cv::Mat large = cv::Mat::zeros(side * Fine, side * Fine, CV_32F);
    const double turn = degrees * CV_PI / 180;
    const cv::Point2d centre(large.cols / 2.0, large.rows / 2.0);
    const cv::Point2d half(std::cos(turn) * length * Fine / 2, -std::sin(turn) * length * Fine / 2);
    cv::line(large, centre - half, centre + half, 1, Fine);
    cv::Mat kernel;
    cv::resize(large, kernel, {side, side}, 0, 0, cv::INTER_AREA);
    return kernel;
}

Degraded withNoise(const Photograph &p, const cv::Mat &blurred, double sigma, cv::RNG &random) {
    return {p.clean, stored(blurred + whiteNoise(p.clean.size(), random) * sigma), sigma};
}

} // namespace

cv::Mat gaussianBlur(const cv::Mat &picture, double sigma) {
    cv::Mat blurred;
    cv::GaussianBlur(real(picture), blurred, {}, sigma);
    return blurred;
}

std::vector<Degradation> degradations() {
    using P = const Photograph &;
    using R = cv::RNG &;
    std::vector<Degradation> all = {
        {"clean", Fault::None, false, [](P p, R) { return Degraded{p.clean, p.clean, 0}; }}};
    for (const int sigma : {5, 10, 15, 25, 35, 50}) {
        all.push_back({"white noise " + std::to_string(sigma), Fault::WhiteNoise, true,
                       [sigma](P p, R r) { return white(p, sigma, r); }});
    }
    const auto noise = [&all](const char *name, std::function<Degraded(P, R)> apply) {
        all.push_back({name, Fault::CameraNoise, true, std::move(apply)});
    };
    noise("camera, low light, q95", [](P p, R r) { return camera(p, 0.001, 95, r); });
    noise("camera, dusk, q92", [](P p, R r) { return camera(p, 0.004, 92, r); });
    noise("camera, night, q90", [](P p, R r) { return camera(p, 0.016, 90, r); });
    noise("noise 10, JPEG q90", [](P p, R r) { return compressedNoise(p, 10, 90, r); });
    noise("noise 25, JPEG q75", [](P p, R r) { return compressedNoise(p, 25, 75, r); });
    noise("noise 20 reduced, area", [](P p, R r) { return reduced(p, 20, cv::INTER_AREA, r); });
    noise("noise 20 reduced, linear", [](P p, R r) { return reduced(p, 20, cv::INTER_LINEAR, r); });
    noise("grain 10, size 0.6", [](P p, R r) { return grain(p, 10, 0.6, r); });
    noise("grain 20, size 0.9", [](P p, R r) { return grain(p, 20, 0.9, r); });

    const auto blur = [&all](std::string name, bool worth, std::function<cv::Mat(P)> kernel, double sigma) {
        all.push_back({std::move(name), sigma > 2 ? Fault::Both : Fault::Blur, worth,
                       [kernel, sigma](P p, R r) { return withNoise(p, kernel(p), sigma, r); }});
    };
    const auto gaussian = [](double sigma) { return [sigma](P p) { return gaussianBlur(p.clean, sigma); }; };
    blur("blur 1.0, noise 1", false, gaussian(1.0), 1);
    blur("blur 1.6, noise 1", true, gaussian(1.6), 1);
    blur("blur 2.5, noise 1", true, gaussian(2.5), 1);
    blur("blur 4.0, noise 1", true, gaussian(4.0), 1);
    blur("defocus 3, noise 1", true, [](P p) { return filtered(p.clean, disc(3)); }, 1);
    blur("defocus 6, noise 1", true, [](P p) { return filtered(p.clean, disc(6)); }, 1);
    blur("smear 9, noise 1", true, [](P p) { return filtered(p.clean, smear(9, 20)); }, 1);
    blur("smear 15, noise 1", true, [](P p) { return filtered(p.clean, smear(15, 110)); }, 1);
    blur("blur 1.6, noise 5", true, gaussian(1.6), 5);
    blur("blur 2.5, noise 15", true, gaussian(2.5), 15);
    return all;
}
