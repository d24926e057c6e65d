#pragma once

#include <QObject>
#include <QQmlEngine>

// A group of values of which some are others in the light theme.
class PbThemed : public QObject {
    Q_OBJECT
    QML_ANONYMOUS

public:
    using QObject::QObject;

    void setDarkMode(bool darkMode) {
        if (m_darkMode == darkMode)
            return;
        m_darkMode = darkMode;
        Q_EMIT themeChanged();
    }

Q_SIGNALS:
    void themeChanged();

protected:
    bool m_darkMode = true;
};
