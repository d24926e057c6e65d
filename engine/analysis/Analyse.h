#pragma once

#include "contracts/ProcessingBackend.h"
#include "engine/analysis/ImageStatistics.h"
#include "engine/catalogue/ModelCatalogue.h"

/// What should be done to a picture, from what was measured on it and from the user's preferences.
///
/// `settings` has one entry for each of "Denoise" (or "RAW" for camera files), "Sharpen", "Enhance",
/// "Exposure Adjust" and "White Balance Adjust": "enabled", "model" and the parameters of all `models`
/// of the category, so that a filter that is off starts well when switched on by hand. `problems` holds
/// "noise_level" and "blur_level" (Autopilot::Level), "ap_params" with "noise" and "blur" on the
/// scale of the status view, what is known of faces and subject, and "reasons": category to
/// { measured, threshold, text }.
///
/// `recommendFilters` changes nothing here: it says whether the recommendations are applied unasked.
AutopilotAnswer analyseImage(const EngineInput &input, const ImageStatistics &statistics,
                             const ModelCatalogue &models, const AutopilotOptions &options,
                             const RunControl &control);
