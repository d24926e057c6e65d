#pragma once

#include "Cases.h"

#include <map>
#include <optional>

/// What a case came to, over all its pictures.
struct Outcome {
    double damaged = 0, ours = 0, reference = 0; ///< PSNR in dB
    std::optional<double> automatic;             ///< where Autopilot puts the slider
    double ourSsim = 0, referenceSsim = 0;
    cv::Mat crops; ///< damaged, reference, ours, clean, side by side; empty when the engine failed
};

class Measurement {
public:
    Measurement(std::vector<cv::Mat> photographs, std::vector<cv::Mat> drawings);
    Outcome measure(const Case &one);

private:
    struct Score {
        double psnr = -1, ssim = 0;
        cv::Mat shown; ///< the answer for the picture that the page shows
    };
    using Pictures = std::vector<cv::Mat>;
    const Pictures &cleanFor(const Case &one) const;
    Score score(const Case &one, const Pictures &answers) const;
    Score reference(const Case &one, const Pictures &damaged);
    Score ours(const Case &one, const Pictures &damaged, const std::vector<Filter> &perPicture);

    std::vector<EngineRun> m_engines; ///< one for each core: a small picture keeps one core busy
    Pictures m_photographs, m_drawings;
    std::map<std::string, Score> m_references; ///< several models meet the same damage
};
