#pragma once

#include <opencv2/core.hpp>

#include <string>
#include <vector>

/// What OpenCV makes of a damaged picture, at each of a few settings: the best of them counts.
struct Reference {
    std::string name;
    std::vector<cv::Mat> (*answers)(const cv::Mat &damaged, int scale);
};

extern const Reference NonLocalMeans; ///< fastNlMeansDenoisingColored, three strengths
extern const Reference UnsharpMask;   ///< nine combinations of radius and amount
extern const Reference Bicubic;       ///< enlargement
extern const Reference Lanczos;       ///< enlargement
extern const Reference LeftAlone;     ///< the damaged picture
