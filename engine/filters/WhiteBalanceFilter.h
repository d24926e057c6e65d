#pragma once

#include "engine/filters/Filters.h"

std::unique_ptr<Stage> makeWhiteBalanceStage(const FilterInput &input);
