#include "app/platform/Restart.h"

#include <windows.h>

namespace System {

int registerRestart() {
    const HRESULT result = RegisterApplicationRestart(L"--recover", RESTART_NO_HANG | RESTART_NO_REBOOT);
    return result == S_OK ? 0 : int(GetLastError());
}

} // namespace System
