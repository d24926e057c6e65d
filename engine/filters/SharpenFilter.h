#pragma once

#include "engine/filters/Filters.h"

std::unique_ptr<Stage> makeSharpenStage(const FilterInput &input);
