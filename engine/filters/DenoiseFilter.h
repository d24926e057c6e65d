#pragma once

#include "engine/filters/Filters.h"

Made makeDenoiseStage(const FilterInput &input);
