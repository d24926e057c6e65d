#include "items/platform/SystemTheme.h"

#include <QSettings>

#include <string_view>

#include <windows.h>

namespace systemTheme {

bool isDark() {
    const QSettings registry(
        QStringLiteral(
            "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"),
        QSettings::NativeFormat);
    return registry.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0;
}

bool announcedByMessage() {
    return true;
}

bool isThemeMessage(const QByteArray &eventType, const void *message) {
    if (!message || !eventType.startsWith("windows_"))
        return false;
    const auto *msg = static_cast<const MSG *>(message);
    const auto *what = reinterpret_cast<const wchar_t *>(msg->lParam);
    return msg->message == WM_SETTINGCHANGE && what && std::wstring_view(what) == L"ImmersiveColorSet";
}

} // namespace systemTheme
