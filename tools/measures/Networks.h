#pragma once

#include <QString>

#include <set>
#include <vector>

/// What running one weight file costs.
struct NetworkCost {
    QString file;   ///< without folder
    QString models; ///< that use it
    int scale = 1;
    int halo = 0;
    double multiplyAdds = 0;  ///< for a pixel of input
    double megabytes = 0;     ///< of the file
    double seconds = 0;       ///< by the clock, for a megapixel of input
    double coreSeconds = 0;   ///< of all cores together, the same
    double peakMegabytes = 0; ///< most memory that the program held
};

/// Runs each network of these models over one large picture.
std::vector<NetworkCost> networkCosts(const std::set<QString> &models);
