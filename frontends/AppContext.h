#pragma once

#include <QObject>
#include <QString>
#include <QtQmlIntegration/qqmlintegration.h>

/// Constants and folders of this run, the same for native code and QML. Built after the
/// application's identity is set, because its name and the setting `developerMode` are read then.
class AppContext : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Cannot create AppContext from QML")
    Q_PROPERTY(QString appName READ appName CONSTANT)
    Q_PROPERTY(QString cname READ cname CONSTANT)
    Q_PROPERTY(QString appVersion READ appVersion CONSTANT)
    Q_PROPERTY(QString copyrightYear READ copyrightYear CONSTANT)
    Q_PROPERTY(bool isAlpha READ isAlpha CONSTANT)
    Q_PROPERTY(bool isBeta READ isBeta CONSTANT)
    Q_PROPERTY(bool isDev READ isDev CONSTANT)
    Q_PROPERTY(bool isWindows READ isWindows CONSTANT)
    Q_PROPERTY(bool isMac READ isMac CONSTANT)
    Q_PROPERTY(int headerHeight READ headerHeight CONSTANT)
    Q_PROPERTY(QString modelDirectory READ modelDirectory CONSTANT)
    Q_PROPERTY(QString logDirectory READ logDirectory CONSTANT)
    Q_PROPERTY(QString presetsDirectory READ presetsDirectory CONSTANT)

public:
    /// Makes the folder "Presets" beside the log folder. When that can't be done, the path is given
    /// all the same and nothing is there.
    AppContext(const QString &modelDirectory, const QString &logDirectory, QObject *parent = nullptr);

    QString appName() const { return m_appName; }
    /// The product's short code, given to update checks.
    QString cname() const { return QStringLiteral("ORVST"); }
    QString appVersion() const;
    QString copyrightYear() const { return QStringLiteral("2024"); }
    bool isAlpha() const { return false; }
    bool isBeta() const { return false; }
    bool isDev() const { return m_isDev; }
    /// True on every system but macOS: the interface knows two looks, and Linux takes this one.
    bool isWindows() const { return !isMac(); }
    bool isMac() const;
    int headerHeight() const { return 82; }
    QString modelDirectory() const { return m_modelDirectory; }
    QString logDirectory() const { return m_logDirectory; }
    QString presetsDirectory() const { return m_presetsDirectory; }

private:
    QString m_appName;
    bool m_isDev;
    QString m_modelDirectory;
    QString m_logDirectory;
    QString m_presetsDirectory;
};
