#include "items/WindowsThemeListener.h"

#include "items/platform/SystemTheme.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QStyleHints>

WindowsThemeListener::WindowsThemeListener(QObject *parent)
    : QObject(parent) {
    if (auto *application = QCoreApplication::instance())
        application->installNativeEventFilter(this);
    if (!systemTheme::announcedByMessage() && qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this,
                [this] { Q_EMIT themeChanged(theme()); });
    }
}

WindowsThemeListener::~WindowsThemeListener() {
    if (auto *application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
}

QString WindowsThemeListener::theme() const {
    return systemTheme::isDark() ? QStringLiteral("dark") : QStringLiteral("light");
}

bool WindowsThemeListener::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *) {
    if (!systemTheme::isThemeMessage(eventType, message))
        return false;
    Q_EMIT themeChanged(theme());
    return true;
}
