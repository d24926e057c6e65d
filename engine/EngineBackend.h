#pragma once

#include "contracts/ProcessingBackend.h"

#include <cstddef>
#include <memory>

/// How an engine uses the machine. The result of a run depends on none of these.
struct EngineOptions {
    int threads = 0;                                 ///< 0: one for each core
    int tileSide = 0;                                ///< output pixels; 0: each stage's own choice
    std::size_t cacheBytes = std::size_t(384) << 20; ///< intermediate results kept for previews
};

/// The pixel work of the program. Models are those of the last catalogue() call that found any.
std::unique_ptr<ProcessingBackend> makeEngineBackend(const EngineOptions &options = {});
