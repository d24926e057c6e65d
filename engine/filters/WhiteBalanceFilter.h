#pragma once

#include "engine/filters/Filters.h"

PreparedStage makeWhiteBalanceStage(const FilterInput &input);
