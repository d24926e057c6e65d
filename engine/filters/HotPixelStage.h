#pragma once

#include "engine/core/Stage.h"

#include <memory>

/// Follows a denoised camera file when the user wants its hot pixels corrected.
std::unique_ptr<Stage> makeHotPixelStage();
