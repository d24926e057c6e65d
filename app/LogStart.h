#pragma once

#include <QString>

/// Starts logging; called once by an entry point, before the application object exists and before the
/// application's identity is set. Returns the log folder. The program ends with TLogger::shutdown().
QString startLog(bool plainConsole, int consoleLevel);
