#pragma once

#include "contracts/Preferences.h"

namespace Autopilot {

/// How strong a fault (noise, blur) was found to be. Stored as a plain number in image settings.
enum class Level : qint32 { Unknown = -1, None = 0, Low = 1, Medium = 2, High = 3, Severe = 4 };

/// The user's preferences that steer the analysis, named as the front end's properties. The defaults
/// are those of a first start.
struct Preferences {
#define FIELD(Type, key, initial, allowed, EngineType, property, ...)                                        \
    EngineType property = EngineType(preferenceValue<Type> initial);
    AUTOPILOT_PREFERENCES(FIELD)
#undef FIELD
    bool resizingSupported = true; ///< by the host; no preference
};

} // namespace Autopilot
