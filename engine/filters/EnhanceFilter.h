#pragma once

#include "engine/filters/Filters.h"

std::unique_ptr<Stage> makeEnhanceStage(const FilterInput &input);
