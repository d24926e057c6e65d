#pragma once

#include "engine/filters/Filters.h"

PreparedStage makeExposureStage(const FilterInput &input);
