#include "app/platform/System.h"

#include "system/Identity.h"

#include <QDir>
#include <QSettings>

#include <windows.h>

#include <vector>

void System::setConsoleUtf8() {
    SetConsoleOutputCP(CP_UTF8);
}

bool System::debuggerAttached() {
    return IsDebuggerPresent() != FALSE;
}

void System::writeToDebugger(const QString &text) {
    OutputDebugStringW(reinterpret_cast<const wchar_t *>(text.utf16()));
}

QString System::executablePath() {
    // The call cuts a longer path off and then returns the size of the buffer.
    std::vector<wchar_t> path(MAX_PATH);
    DWORD length = GetModuleFileNameW(nullptr, path.data(), DWORD(path.size()));
    while (length == path.size()) {
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), DWORD(path.size()));
    }
    return QDir::fromNativeSeparators(QString::fromWCharArray(path.data(), int(length)));
}

QString System::registeredModelDir() {
    const QString key = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\%1\\%2")
                            .arg(Identity::organization(), Identity::productName());
    return QSettings(key, QSettings::NativeFormat).value(QStringLiteral("ModelDir")).toString();
}
