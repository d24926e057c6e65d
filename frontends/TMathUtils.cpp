#include "frontends/TMathUtils.h"

#include <algorithm>

double TMathUtils::mapBrushSize(double brushSize, const QSizeF &imageSize) {
    const double longest = std::max(imageSize.width(), imageSize.height());
    if (!(longest > 0))
        return 0;
    const double middle = longest / 32;
    return brushSize >= 50 ? middle * (1 + 3 * (brushSize - 50) / 50)
                           : middle * (brushSize - 0.5) / 49.5 + 0.5;
}
