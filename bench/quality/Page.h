#pragma once

#include "Cases.h"

#include <QString>

/// What a case came to, over all photographs.
struct Outcome {
    double damaged = 0, ours = 0, reference = 0; ///< PSNR in dB
    double ourSsim = 0, referenceSsim = 0;
    double secondsPerMegapixel = 0; ///< of input
    cv::Mat crops;                  ///< damaged, reference, ours, clean, side by side
};

/// Writes README.md and the pictures of a case's first appearance into a folder, which is made. False
/// when something could not be written.
bool writePage(const QString &folder, const std::vector<Case> &cases, const std::vector<Outcome> &outcomes,
               int photographs, double peakMegabytes);
