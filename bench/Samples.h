#pragma once

#include <opencv2/core.hpp>

/// Between 8-bit B G R pictures and real numbers on the same scale of 0 to 255.

cv::Mat real(const cv::Mat &picture);

/// Rounded, and cut off at black and white, as a file holds it.
cv::Mat stored(const cv::Mat &picture);

/// White noise of this standard deviation in three independent channels, as real numbers.
cv::Mat whiteNoise(cv::Size size, cv::RNG &random, double sigma = 1);

/// Through a JPEG file of this quality (1 to 100).
cv::Mat withJpeg(const cv::Mat &picture, int quality);
