#pragma once

#include <opencv2/core.hpp>

#include <vector>

/// Pictures that nobody photographed, always the same: text, interfaces, charts, line art, gradients,
/// patterns. 8 bit, B G R. Needs a QGuiApplication for its fonts.
std::vector<cv::Mat> drawings(cv::Size size);
