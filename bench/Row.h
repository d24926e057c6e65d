#pragma once

#include <vector>

/// Prints a figure with its bound; 0 when it is within, 1 when it is not or is negative.
int row(const char *what, double value, const char *unit, double limit);

/// -1 of nothing.
double median(std::vector<double> values);
