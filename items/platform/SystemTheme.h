#pragma once

#include <QByteArray>

namespace systemTheme {

/// The system's present choice; dark where it has none.
bool isDark();

/// Whether a change comes as a native message (Windows) rather than through Qt's style hints.
bool announcedByMessage();

/// Whether this native message says that the choice of light or dark changed.
bool isThemeMessage(const QByteArray &eventType, const void *message);

} // namespace systemTheme
