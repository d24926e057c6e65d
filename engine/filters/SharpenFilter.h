#pragma once

#include "engine/filters/Filters.h"

Made makeSharpenStage(const FilterInput &input);
