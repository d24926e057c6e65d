#pragma once

#include <QString>

/// What differs from one operating system to the next. Everything here works before an
/// application object exists.
namespace System {

/// Makes a console that has a code page take UTF-8.
void setConsoleUtf8();

bool debuggerAttached();
void writeToDebugger(const QString &text);

/// Absolute path of the running program; empty when the system doesn't say.
QString executablePath();

/// The value `ModelDir` that an installer left for every user of this machine; empty when there is none.
QString registeredModelDir();

} // namespace System
