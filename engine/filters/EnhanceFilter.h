#pragma once

#include "engine/filters/Filters.h"

Made makeEnhanceStage(const FilterInput &input);
