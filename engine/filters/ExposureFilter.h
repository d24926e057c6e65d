#pragma once

#include "engine/filters/Filters.h"

std::unique_ptr<Stage> makeExposureStage(const FilterInput &input);
