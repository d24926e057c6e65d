#include "Samples.h"

#include <opencv2/imgcodecs.hpp>

#include <vector>

cv::Mat real(const cv::Mat &picture) {
    cv::Mat converted;
    picture.convertTo(converted, CV_32F);
    return converted;
}

cv::Mat stored(const cv::Mat &picture) {
    cv::Mat converted;
    picture.convertTo(converted, CV_8U);
    return converted;
}

cv::Mat whiteNoise(cv::Size size, cv::RNG &random, double sigma) {
    cv::Mat noise(size, CV_32FC3);
    random.fill(noise, cv::RNG::NORMAL, 0, sigma);
    return noise;
}

cv::Mat withJpeg(const cv::Mat &picture, int quality) {
    std::vector<uchar> file;
    cv::imencode(".jpg", picture, file, {cv::IMWRITE_JPEG_QUALITY, quality});
    return cv::imdecode(file, cv::IMREAD_COLOR);
}
