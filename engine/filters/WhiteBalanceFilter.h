#pragma once

#include "engine/filters/Filters.h"

Made makeWhiteBalanceStage(const FilterInput &input);
