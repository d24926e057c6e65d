#include "cli/Terminal.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#else
#include <sys/ioctl.h>
#include <unistd.h>
#endif

#ifdef Q_OS_WIN

bool terminal::onStandardError() {
    return _isatty(2) != 0;
}

int terminal::columns() {
    CONSOLE_SCREEN_BUFFER_INFO info;
    if (GetConsoleScreenBufferInfo(GetStdHandle(STD_ERROR_HANDLE), &info))
        return info.srWindow.Right - info.srWindow.Left + 1;
    return 80;
}

#else

bool terminal::onStandardError() {
    return isatty(STDERR_FILENO) == 1;
}

int terminal::columns() {
    winsize size = {};
    if (ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
        return size.ws_col;
    return 80;
}

#endif
