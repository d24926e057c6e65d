#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QtQmlIntegration/qqmlintegration.h>

/// Services of the operating system, for QML and C++.
class OSUtils : public QObject {
    Q_OBJECT
    QML_ELEMENT
public:
    using QObject::QObject;

    /// Removes the thumbnails that this program left in the temporary folder.
    Q_INVOKABLE static void clearThumbnailTempFiles();
    /// Removes all that this program left there.
    Q_INVOKABLE static void clearTempFiles();

    Q_INVOKABLE static QString machineId();
    Q_INVOKABLE static QString username();
    Q_INVOKABLE static QString generateUuid();
    Q_INVOKABLE static QString operatingSystemVersion();
    Q_INVOKABLE static QString cpuName();
    Q_INVOKABLE static bool isAppleProcessor();
    /// What models can run on, in the order of the setting `deviceId`, which counts from -2: the
    /// program's choice, the processor, then graphics cards, of which the engine uses none.
    Q_INVOKABLE static QStringList getAIProcessors();
    Q_INVOKABLE static QStringList gpuList() { return {}; }
    /// Bytes of the largest graphics card that the engine uses.
    Q_INVOKABLE static qint64 maxGpuVram() { return 0; }
    /// Physical pixels for each logical one on the main screen; 1 without a screen.
    Q_INVOKABLE static double devicePixelRatio();
    /// Writes the system and its processor to the log.
    Q_INVOKABLE static void logSystemInfo();

    Q_INVOKABLE static bool fileExists(const QString &path);

    /// Frame of the program's first window; an empty rectangle without one.
    Q_INVOKABLE static QRect geometry();
    /// Places that window. The rectangle is that of the content below a title bar of the system's,
    /// TitleBarHeight high; a window that draws its own is higher by as much, so that what geometry()
    /// gave comes back. One that no screen would show any more, and an empty one, is centred.
    Q_INVOKABLE static void setGeometry(const QRect &content);
    static constexpr int TitleBarHeight = 31;

    Q_INVOKABLE static Qt::KeyboardModifiers keyboardModifiers();
    /// In coordinates of the desktop.
    Q_INVOKABLE static QPoint mousePosition();
    /// Shows this pointer over all of the program until clearCursor; a second call replaces the first.
    Q_INVOKABLE static void setCursor(Qt::CursorShape shape);
    Q_INVOKABLE static void clearCursor();
    /// The system's present choice; true where it has none.
    Q_INVOKABLE static bool darkMode();
    /// Asks for the user's attention without taking the focus.
    Q_INVOKABLE static void alert();

    /// Local paths that are on the clipboard; a picture there becomes a temporary file. Empty for anything
    /// else.
    Q_INVOKABLE static QStringList clipboard();

    Q_INVOKABLE static bool openFolder(const QString &folder);
    /// The file manager opens the folder with the file selected; where it can't, the folder alone.
    Q_INVOKABLE void showFileInGraphicalShell(const QString &path);

Q_SIGNALS:
    /// These two answer a failed showFileInGraphicalShell.
    void fileMissing(const QString &path);
    void showFileError(const QString &path);
};
