#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

/// Follows the system's choice of light or dark. On Windows from the settings message and the
/// registry, elsewhere from the platform's colour scheme.
class WindowsThemeListener : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Cannot create WindowsThemeListener from QML")
    Q_PROPERTY(QString theme READ theme NOTIFY themeChanged)
public:
    explicit WindowsThemeListener(QObject *parent = nullptr);
    ~WindowsThemeListener() override;

    /// "light" or "dark", read afresh.
    QString theme() const;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

Q_SIGNALS:
    /// Carries the theme, in spite of the argument's name.
    void themeChanged(const QString &isDarkMode);
};
