#pragma once

#include "References.h"
#include "bench/EngineRun.h"

#include <functional>
#include <string>
#include <vector>

/// What a case begins with.
enum class Source { Photographs, Drawings };

/// What the program would know of a damaged file: whether it is a camera's, and then of colours or of a
/// mosaic.
enum class File { Picture, Mosaic, LinearRaw };

/// One line of the page: a model against one damage.
struct Case {
    std::string model;
    std::string damage;
    std::function<cv::Mat(const cv::Mat &clean, int seed)> apply;
    /// The slider's places that are tried; the one best on average counts, as for the reference.
    std::vector<Filter> settings;
    const Reference &reference;
    int scale = 1; ///< above 1 luminance is compared
    Source source = Source::Photographs;
    File file = File::Picture;
};

std::vector<Case> allCases();
