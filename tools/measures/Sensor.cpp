#include "Sensor.h"

#include <opencv2/imgproc.hpp>

#include <cmath>
#include <functional>

namespace {

const cv::Scalar Gains(1.6, 1, 1.9); // B G R, of daylight
/// The readout's noise is that of photons at this share of full light.
constexpr double Readout = 0.01;
/// Sensor data as files hold it: noise goes below black too.
constexpr double Black = 4096, White = 61440;

cv::Mat curve(const cv::Mat &in, const std::function<float(float)> &value) {
    cv::Mat out = in.clone();
    out.forEach<cv::Vec3f>([&value](cv::Vec3f &pixel, const int *) {
        for (int c = 0; c < 3; ++c)
            pixel[c] = value(pixel[c]);
    });
    return out;
}

// IEC 61966-2-1.
cv::Mat toLinear(const cv::Mat &picture) {
    cv::Mat encoded;
    picture.convertTo(encoded, CV_32F, 1.0 / 255);
    return curve(encoded,
                 [](float v) { return v <= 0.04045f ? v / 12.92f : std::pow((v + 0.055f) / 1.055f, 2.4f); });
}

cv::Mat toEncoded(const cv::Mat &linear) {
    return curve(linear, [](float v) {
        v = std::clamp(v, 0.0f, 1.0f);
        return v <= 0.0031308f ? v * 12.92f : 1.055f * std::pow(v, 1 / 2.4f) - 0.055f;
    });
}

cv::Mat mosaicOf(const cv::Mat &linear) {
    cv::Mat out(linear.size(), CV_32F);
    for (int y = 0; y < out.rows; ++y)
        for (int x = 0; x < out.cols; ++x) {
            const int channel = 2 - y % 2 - x % 2; // R G, G B
            out.at<float>(y, x) = linear.at<cv::Vec3f>(y, x)[channel] / float(Gains[channel]);
        }
    return out;
}

cv::Mat demosaiced(const cv::Mat &mosaic) {
    cv::Mat stored, colours;
    mosaic.convertTo(stored, CV_16U, White - Black, Black);
    cv::demosaicing(stored, colours, cv::COLOR_BayerRGGB2BGR_EA);
    colours.convertTo(colours, CV_32F, 1 / (White - Black), -Black / (White - Black));
    return colours.mul(Gains);
}

} // namespace

cv::Mat throughSensor(const cv::Mat &clean, double rms, double smear, int seed) {
    const cv::Mat light = mosaicOf(toLinear(clean)), quiet = demosaiced(light), goal = toEncoded(quiet);
    cv::Mat deviation, field(light.size(), CV_32F);
    cv::sqrt(light + Readout, deviation);
    cv::RNG random(static_cast<std::uint64_t>(seed) + 1);
    random.fill(field, cv::RNG::NORMAL, 0, 1);
    cv::Mat picture;
    // Less light until the noise is as asked for; nearly proportional, so that a few rounds do.
    double strength = rms / 255;
    for (int round = 0; round < 4; ++round) {
        cv::Mat noisy = demosaiced(light + field.mul(deviation, strength));
        if (smear > 0) {
            cv::Mat noise;
            cv::GaussianBlur(noisy - quiet, noise, {}, smear);
            noisy = quiet + noise;
        }
        picture = toEncoded(noisy);
        const double found =
            255 * cv::norm(picture, goal, cv::NORM_L2) / std::sqrt(double(picture.total()) * 3);
        strength *= rms / found;
    }
    cv::Mat stored;
    picture.convertTo(stored, CV_16U, 65535);
    return stored;
}
