#include "app/platform/System.h"

#include "system/Identity.h"

#include <QSettings>

void System::setConsoleUtf8() {
}

// Debuggers here show the program's own standard output; there is no second channel.
bool System::debuggerAttached() {
    return false;
}

void System::writeToDebugger(const QString &) {
}

QString System::registeredModelDir() {
    QSettings settings(QSettings::SystemScope, Identity::organization(), Identity::productName());
    settings.setFallbacksEnabled(false);
    return settings.value(QStringLiteral("ModelDir")).toString();
}
