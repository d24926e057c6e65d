#include "Measures.h"

#include <opencv2/imgproc.hpp>

namespace {

cv::Mat luminance(const cv::Mat &bgr) {
    cv::Mat one, planes;
    bgr.convertTo(one, CV_32F);
    cv::transform(one, planes, cv::Matx13f(24.966f / 255, 128.553f / 255, 65.481f / 255));
    return planes + 16;
}

cv::Mat smooth(const cv::Mat &mat) {
    cv::Mat out;
    cv::GaussianBlur(mat, out, {11, 11}, 1.5);
    return out;
}

double decibels(double squaredError) {
    return 10 * std::log10(255.0 * 255.0 / std::max(squaredError, 1e-6));
}

} // namespace

double psnr(const cv::Mat &a, const cv::Mat &b) {
    return decibels(cv::norm(a, b, cv::NORM_L2SQR) / (double(a.total()) * a.channels()));
}

double psnrOfLuminance(const cv::Mat &a, const cv::Mat &b, int border) {
    const cv::Rect inside(border, border, a.cols - 2 * border, a.rows - 2 * border);
    return decibels(cv::norm(luminance(a)(inside), luminance(b)(inside), cv::NORM_L2SQR) /
                    double(inside.area()));
}

double ssim(const cv::Mat &a, const cv::Mat &b) {
    constexpr double c1 = 0.01 * 255 * 0.01 * 255, c2 = 0.03 * 255 * 0.03 * 255;
    const cv::Mat x = luminance(a), y = luminance(b);
    const cv::Mat mx = smooth(x), my = smooth(y);
    const cv::Mat vx = smooth(x.mul(x)) - mx.mul(mx), vy = smooth(y.mul(y)) - my.mul(my);
    const cv::Mat vxy = smooth(x.mul(y)) - mx.mul(my);
    cv::Mat map;
    cv::divide((2 * mx.mul(my) + c1).mul(2 * vxy + c2), (mx.mul(mx) + my.mul(my) + c1).mul(vx + vy + c2),
               map);
    return cv::mean(map)[0];
}
