#pragma once

#include <opencv2/core.hpp>

/// Peak signal to noise ratio in dB of two 8-bit B G R pictures of one size, over all channels.
double psnr(const cv::Mat &a, const cv::Mat &b);

/// The same over luminance (ITU-R BT.601 in video range), without `border` pixels at each edge: how
/// enlargements are usually compared.
double psnrOfLuminance(const cv::Mat &a, const cv::Mat &b, int border);

/// Structural similarity (Wang et al. 2004) of luminance, 0 to 1: Gaussian window of 1.5 pixels.
double ssim(const cv::Mat &a, const cv::Mat &b);
