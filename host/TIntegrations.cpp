#include "host/TIntegrations.h"

#include "frontends/TImageUtils.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMimeData>
#include <QUrl>
#include <QWindow>

using namespace Qt::StringLiterals;

TIntegrations::TIntegrations(const QStringList &arguments, QObject *parent)
    : QObject(parent)
    , m_arguments(arguments.mid(1)) {
}

QString TIntegrations::mergableInstanceKey() const {
    return u"standalone"_s;
}

void TIntegrations::setCurrentImage(const QString &id) {
    if (m_currentImage == id)
        return;
    m_currentImage = id;
    Q_EMIT currentImageChanged();
}

void TIntegrations::start() {
    if (m_started)
        return;
    m_started = true;
    handOn(m_arguments, false);
    for (const QStringList &entries : std::as_const(m_mergedBeforeStart))
        handOn(entries, true);
    m_mergedBeforeStart.clear();
}

// A folder may be large or far away: it is walked in the background, and what comes meanwhile waits its turn.
void TIntegrations::handOn(const QStringList &entries, bool merging) {
    if (m_gathering == 0 && !namesFolder(entries)) {
        announce(gatherInput(entries), merging);
        return;
    }
    ++m_gathering;
    m_gatherer.post([this, entries, merging](const std::stop_token &stop) {
        m_mailbox.post([this, input = gatherInput(entries, stop), merging] {
            --m_gathering;
            announce(input, merging);
        });
    });
}

void TIntegrations::announce(const GatheredInput &input, bool merging) {
    if (!input.images.isEmpty())
        Q_EMIT pluginImagesAdded(input.images, merging);
    if (!input.invalid.isEmpty())
        Q_EMIT invalidImages(input.invalid);
}

QString TIntegrations::getDataForMerging() const {
    QJsonArray paths;
    for (const QString &argument : m_arguments) {
        // The server's working folder is another one.
        const QFileInfo info(argument);
        paths.append(info.exists() ? info.absoluteFilePath() : argument);
    }
    return QString::fromUtf8(QJsonDocument(paths).toJson(QJsonDocument::Compact));
}

void TIntegrations::mergeInstance(const QString &data) {
    const QJsonDocument document = QJsonDocument::fromJson(data.toUtf8());
    if (!document.isArray()) {
        qWarning() << "Another instance sent something that is not a list of files";
        return;
    }
    QStringList entries;
    const QJsonArray array = document.array();
    for (const auto &value : array)
        entries.append(value.toString());
    if (m_started)
        handOn(entries, true);
    else
        m_mergedBeforeStart.append(entries);
}

void TIntegrations::setup(QCoreApplication *application, TIntercom *) {
    m_application = application;
    if (application)
        application->installEventFilter(this);
}

void TIntegrations::cleanup() {
    if (m_application)
        m_application->removeEventFilter(this);
    m_application.clear();
}

bool TIntegrations::eventFilter(QObject *watched, QEvent *event) {
    // The documents' drop areas accept the drag and show it; the files are taken here.
    if (event->type() != QEvent::Drop || !qobject_cast<QWindow *>(watched))
        return false;
    const auto *drop = static_cast<QDropEvent *>(event);
    if (drop->source() || !drop->mimeData() || !drop->mimeData()->hasUrls())
        return false;
    QStringList entries;
    const auto urls = drop->mimeData()->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            entries.append(url.toLocalFile());
        else
            entries.append(url.toString());
    }
    QMetaObject::invokeMethod(this, [this, entries] { handOn(entries, false); }, Qt::QueuedConnection);
    return false;
}

void TIntegrations::loadImage(const QString &id, bool) {
    qWarning() << "No host application is connected; cannot fetch" << id;
}

QVariantMap TIntegrations::loadSettings(const QString &) const {
    return {{u"version"_s, 0}};
}

void TIntegrations::saveSettings(const QString &id, const QVariantMap &, const QStringList &) {
    qWarning() << "No host application is connected; settings are not stored for" << id;
}

QSize TIntegrations::imageSize(const QString &) const {
    return {};
}

void TIntegrations::saveImage(const std::shared_ptr<ImageData> &, const QString &inputPath, const QString &,
                              const QVariantMap &, const QVariantMap &) {
    Q_EMIT pluginImageSavingError(inputPath, tr("No host application is connected."));
}
