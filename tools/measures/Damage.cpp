#include "Damage.h"

#include "bench/Samples.h"

#include <opencv2/imgproc.hpp>

#include <functional>

namespace {

constexpr int KernelSide = 21;

cv::Mat noise(cv::Size size, double sigma, int seed) {
    cv::RNG random(static_cast<std::uint64_t>(seed) + 1);
    return whiteNoise(size, random, sigma);
}

cv::Mat kernel(const std::function<double(double x, double y)> &weight) {
    cv::Mat out(KernelSide, KernelSide, CV_32F);
    for (int y = 0; y < KernelSide; ++y)
        for (int x = 0; x < KernelSide; ++x)
            out.at<float>(y, x) = float(weight(x - KernelSide / 2, y - KernelSide / 2));
    return out / cv::sum(out)[0];
}

// Keys' cubic of a = -0.5, stretched by the factor: one row for each output pixel.
cv::Mat reductionMatrix(int size, int factor) {
    cv::Mat out = cv::Mat::zeros(size / factor, size, CV_32F);
    for (int i = 0; i < out.rows; ++i) {
        const double centre = (i + 0.5) * factor - 0.5;
        for (int k = -2 * factor; k <= 2 * factor + 1; ++k) {
            const int at = int(centre) + k;
            const double t = std::abs(at - centre) / factor;
            const double weight = t < 1   ? 1.5 * t * t * t - 2.5 * t * t + 1
                                  : t < 2 ? -0.5 * t * t * t + 2.5 * t * t - 4 * t + 2
                                          : 0;
            out.at<float>(i, std::clamp(at, 0, size - 1)) += float(weight);
        }
        out.row(i) /= cv::sum(out.row(i))[0];
    }
    return out;
}

} // namespace

cv::Mat withNoise(const cv::Mat &clean, double sigma, int seed) {
    return stored(real(clean) + noise(clean.size(), sigma, seed));
}

cv::Mat withChromaNoise(const cv::Mat &clean, double sigma, double chroma, int seed) {
    cv::Mat blotches = noise(clean.size(), 1, seed + 1000), grey;
    cv::GaussianBlur(blotches, blotches, {}, 2);
    cv::transform(blotches, grey, cv::Matx13f(0.114f, 0.587f, 0.299f));
    cv::merge(std::vector<cv::Mat>{grey, grey, grey}, grey);
    blotches -= grey;
    const double spread = std::sqrt(cv::norm(blotches, cv::NORM_L2SQR) / (double(blotches.total()) * 3));
    return stored(real(clean) + noise(clean.size(), sigma, seed) + blotches * (chroma / spread));
}

cv::Mat convolved(const cv::Mat &clean, const cv::Mat &kernel, double sigma, int seed) {
    cv::Mat out;
    cv::filter2D(real(clean), out, -1, kernel, {-1, -1}, 0, cv::BORDER_REFLECT_101);
    return stored(out + noise(clean.size(), sigma, seed));
}

cv::Mat gaussianKernel(double sigma) {
    return kernel([sigma](double x, double y) { return std::exp(-(x * x + y * y) / (2 * sigma * sigma)); });
}

cv::Mat discKernel(double radius) {
    return kernel(
        [radius](double x, double y) { return std::clamp(radius + 0.5 - std::hypot(x, y), 0.0, 1.0); });
}

cv::Mat lineKernel(double length, double angle) {
    return kernel([=](double x, double y) {
        const double along = x * std::cos(angle) + y * std::sin(angle);
        const double across = y * std::cos(angle) - x * std::sin(angle);
        return std::clamp(length / 2 + 0.5 - std::abs(along), 0.0, 1.0) *
               std::clamp(1 - std::abs(across), 0.0, 1.0);
    });
}

cv::Mat reduced(const cv::Mat &clean, int factor) {
    const cv::Mat rows = reductionMatrix(clean.rows, factor), columns = reductionMatrix(clean.cols, factor);
    std::vector<cv::Mat> planes;
    cv::split(real(clean), planes);
    for (cv::Mat &plane : planes)
        plane = rows * plane * columns.t();
    cv::Mat out;
    cv::merge(planes, out);
    return stored(out);
}
