#pragma once

#include <opencv2/core.hpp>

/// Damage to 8-bit B G R pictures. Each call with the same seed damages in the same way.

cv::Mat withNoise(const cv::Mat &clean, double sigma, int seed);

/// White noise and coloured blotches two pixels wide, of these standard deviations.
cv::Mat withChromaNoise(const cv::Mat &clean, double sigma, double chroma, int seed);

/// Convolved with a kernel that sums to 1, then white noise.
cv::Mat convolved(const cv::Mat &clean, const cv::Mat &kernel, double sigma, int seed);
cv::Mat gaussianKernel(double sigma);
cv::Mat discKernel(double radius);
cv::Mat lineKernel(double length, double angle);

/// Reduced by a whole factor with an antialiased bicubic filter; the size must divide.
cv::Mat reduced(const cv::Mat &clean, int factor);
