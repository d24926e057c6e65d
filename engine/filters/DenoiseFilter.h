#pragma once

#include "engine/filters/Filters.h"

std::unique_ptr<Stage> makeDenoiseStage(const FilterInput &input);
