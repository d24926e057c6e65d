#pragma once

#include "Photographs.h"

#include <functional>
#include <string>
#include <vector>

/// What a photograph looks like after something went wrong with it, beside what it should look like.
struct Degraded {
    cv::Mat clean;
    cv::Mat picture;
    double noise = 0; ///< standard deviation of what was added, root mean square over the channels
};

enum class Fault { None, WhiteNoise, CameraNoise, Blur, Both };

struct Degradation {
    std::string name;
    Fault fault;
    bool worthTreating; ///< at the strength from which Autopilot acts by default
    std::function<Degraded(const Photograph &, cv::RNG &)> apply;
};

/// Clean; white noise of 5 to 50; noise as cameras, compression and resizing leave it; blur of
/// several kinds; both.
std::vector<Degradation> degradations();

/// Gaussian blur without rounding in between.
cv::Mat gaussianBlur(const cv::Mat &picture, double sigma);
