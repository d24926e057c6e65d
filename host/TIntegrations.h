#pragma once

#include "contracts/ImageData.h"
#include "frontends/Mailbox.h"
#include "frontends/WorkQueue.h"
#include "host/InputGathering.h"

#include <QObject>
#include <QPointer>
#include <QSize>
#include <QStringList>
#include <QVariantMap>
#include <QtQmlIntegration/qqmlintegration.h>

class QCoreApplication;
class TIntercom;

/// Where images come from outside the file dialog: start arguments, files and folders dropped on a
/// window, and further instances; and the place where host applications would connect. No host
/// protocol is built in, so plug-in mode is off and its operations answer with what that means.
class TIntegrations : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Cannot create TIntegrations from QML")
    Q_PROPERTY(bool isPluginMode READ isPluginMode NOTIFY isPluginModeChanged)
    Q_PROPERTY(PluginType pluginType READ pluginType NOTIFY isPluginModeChanged)
    Q_PROPERTY(QString pluginTrackingID READ pluginTrackingID NOTIFY isPluginModeChanged)
    Q_PROPERTY(QString pluginDisplayName READ pluginDisplayName NOTIFY isPluginModeChanged)
    Q_PROPERTY(bool resizingSupported READ resizingSupported NOTIFY isPluginModeChanged)
    Q_PROPERTY(bool isDngSupported READ isDngSupported NOTIFY isPluginModeChanged)
    Q_PROPERTY(
        bool isAddingToCollectionsSupported READ isAddingToCollectionsSupported NOTIFY isPluginModeChanged)
    Q_PROPERTY(bool fileSizeEstimationSupported READ fileSizeEstimationSupported NOTIFY isPluginModeChanged)
    Q_PROPERTY(
        bool shouldWarnAboutDuplicateFilters READ shouldWarnAboutDuplicateFilters NOTIFY isPluginModeChanged)
    Q_PROPERTY(bool isSilent READ isSilent NOTIFY isPluginModeChanged)
    Q_PROPERTY(bool loading READ loading NOTIFY loadingChanged)
    Q_PROPERTY(QString loadingStatus READ loadingStatus NOTIFY loadingChanged)
    Q_PROPERTY(QString loadingError READ loadingError NOTIFY loadingErrorChanged)
    Q_PROPERTY(QVariantMap imagedata READ imagedata NOTIFY imagedataChanged)
    Q_PROPERTY(QString currentImage READ currentImage WRITE setCurrentImage NOTIFY currentImageChanged)
    Q_PROPERTY(QString mergableInstanceKey READ mergableInstanceKey CONSTANT)
public:
    enum PluginType { None, PSFilter, PSAutomate, Other };
    Q_ENUM(PluginType)

    /// `arguments` as QCoreApplication::arguments() gives them, the program first.
    explicit TIntegrations(const QStringList &arguments, QObject *parent = nullptr);

    bool isPluginMode() const { return false; }
    PluginType pluginType() const { return None; }
    QString pluginTrackingID() const { return {}; }
    QString pluginDisplayName() const { return {}; }
    bool resizingSupported() const { return true; }
    bool isDngSupported() const { return true; }
    bool isAddingToCollectionsSupported() const { return false; }
    bool fileSizeEstimationSupported() const { return true; }
    bool shouldWarnAboutDuplicateFilters() const { return false; }
    bool isSilent() const { return false; }
    bool loading() const { return false; }
    QString loadingStatus() const { return {}; }
    QString loadingError() const { return {}; }
    QVariantMap imagedata() const { return {}; }
    QString currentImage() const { return m_currentImage; }
    void setCurrentImage(const QString &id);
    QString mergableInstanceKey() const;

    /// Called when the window is shown: hands on what the arguments named and what was merged so far.
    Q_INVOKABLE
    void start();
    Q_INVOKABLE
    void loadImage(const QString &id, bool flag);
    Q_INVOKABLE
    QVariantMap loadSettings(const QString &id) const;
    Q_INVOKABLE
    void saveSettings(const QString &id, const QVariantMap &controls, const QStringList &filterOrder);
    Q_INVOKABLE
    QSize imageSize(const QString &id) const;
    Q_INVOKABLE
    void saveImage(const std::shared_ptr<ImageData> &image, const QString &inputPath,
                   const QString &outputPath, const QVariantMap &imageData, const QVariantMap &attributes);

    bool canMergeInstance() const { return true; }
    /// The arguments' files as a JSON array of absolute paths.
    QString getDataForMerging() const;
    void setup(QCoreApplication *application, TIntercom *intercom);
    void cleanup();

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    void mergeInstance(const QString &data);

Q_SIGNALS:
    void pluginImagesAdded(const QStringList &ids, bool mergingInstance);
    void invalidImages(const QStringList &images);
    void pluginImageLoaded(const QString &path, const QVariantMap &imageData);
    void pluginImageSaved(const QString &id);
    void pluginImageSavingProgress(const QString &id, double progress);
    void pluginImageSavingError(const QString &id, const QString &error);
    void trackEvent(const QString &identifier, const QVariantMap &params);
    void loadingChanged();
    void loadingErrorChanged();
    void imagedataChanged();
    void currentImageChanged();
    void isPluginModeChanged(bool isPluginMode);

private:
    void handOn(const QStringList &entries, bool merging);
    void announce(const GatheredInput &input, bool merging);

    QStringList m_arguments;
    bool m_started = false;
    QList<QStringList> m_mergedBeforeStart;
    QString m_currentImage;
    QPointer<QCoreApplication> m_application;
    int m_gathering = 0; ///< batches under way
    Mailbox m_mailbox;
    WorkQueue m_gatherer;
};
