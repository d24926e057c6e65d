#include "Row.h"

#include <algorithm>
#include <cstdio>

int row(const char *what, double value, const char *unit, double limit) {
    const bool within = value >= 0 && value <= limit;
    std::printf("%-58s %9.2f %-3s bound %g %s\n", what, value, unit, limit, within ? "" : "OUT OF BOUNDS");
    std::fflush(stdout);
    return within ? 0 : 1;
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values.empty() ? -1 : values[values.size() / 2];
}
