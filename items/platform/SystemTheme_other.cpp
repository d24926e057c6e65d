#include "items/platform/SystemTheme.h"

#include "system/OSUtils.h"

namespace systemTheme {

bool isDark() {
    return OSUtils::darkMode();
}

bool announcedByMessage() {
    return false;
}

bool isThemeMessage(const QByteArray &, const void *) {
    return false;
}

} // namespace systemTheme
