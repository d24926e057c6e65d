#pragma once

#include "engine/filters/Filters.h"

Made makeExposureStage(const FilterInput &input);
