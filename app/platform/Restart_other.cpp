#include "app/platform/Restart.h"

namespace System {

int registerRestart() {
    return NoRestartService;
}

} // namespace System
