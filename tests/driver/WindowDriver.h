#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

/// What drives the window's program from outside, as a user does: for its tests and its benchmark.
namespace WindowDriver {

/// This process's environment with a home, settings, data and temporary files below `home`, whose folders it
/// makes.
QProcessEnvironment environmentBelow(const QTemporaryDir &home);

/// Gives the process's window the keyboard, which no window manager is there to do. A window that is not on
/// the screen yet refuses it: tries for a minute, as long as the process runs.
bool focus(const QProcess &process);

/// Runs xdotool with these arguments; false when it fails.
bool send(const QStringList &arguments);

} // namespace WindowDriver
