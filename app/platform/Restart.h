#pragma once

namespace System {

/// Asks the system to start the program again, with "--recover", after a crash or an update. 0 on success,
/// else the system's error code. A system without such a service answers NoRestartService.
int registerRestart();

inline constexpr int NoRestartService = -1;

} // namespace System
