#include "items/platform/SystemTheme.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace systemTheme {

bool isDark() {
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return true;
    return QGuiApplication::styleHints()->colorScheme() != Qt::ColorScheme::Light;
}

bool announcedByMessage() {
    return false;
}

bool isThemeMessage(const QByteArray &, const void *) {
    return false;
}

} // namespace systemTheme
