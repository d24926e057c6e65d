#pragma once

#include "frontends/FileBackends.h"
#include "frontends/Mailbox.h"
#include "frontends/WorkQueue.h"

#include <QObject>
#include <QSet>
#include <QVariantList>
#include <QtQmlIntegration/qqmlintegration.h>

/// Writes thumbnails of the images in view into the temporary folder, the current one first. A new plan
/// replaces the one before: pictures no longer in view are not begun. A file that can't be read is
/// tried once.
class TThumbnailWriter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariantList imageDatas READ imageDatas WRITE setImageDatas NOTIFY imageDatasChanged)
    Q_PROPERTY(int startIndex READ startIndex WRITE setStartIndex NOTIFY startIndexChanged)
    Q_PROPERTY(int endIndex READ endIndex WRITE setEndIndex NOTIFY endIndexChanged)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)

public:
    explicit TThumbnailWriter(QObject *parent = nullptr);
    /// With a back end of its own instead of the shared one.
    explicit TThumbnailWriter(std::shared_ptr<ImageFileBackend> backend, QObject *parent = nullptr);
    ~TThumbnailWriter() override;

    /// Maps with `filepath` and, once there is one, `thumbnail`.
    QVariantList imageDatas() const { return m_imageDatas; }
    void setImageDatas(const QVariantList &imageDatas);
    /// Replaces one of them; there may be thousands, and one is what changes most.
    Q_INVOKABLE void setImageData(int index, const QVariantMap &imageData);
    /// The images in view: first and last index, both included; a negative last one means the end of
    /// the list.
    int startIndex() const { return m_startIndex; }
    void setStartIndex(int index);
    int endIndex() const { return m_endIndex; }
    void setEndIndex(int index);
    int currentIndex() const { return m_currentIndex; }
    void setCurrentIndex(int index);

    Q_INVOKABLE void startGenerating();

Q_SIGNALS:
    void imageDatasChanged();
    void startIndexChanged();
    void endIndexChanged();
    void currentIndexChanged();
    /// One of the three indices changed.
    void indexUpdated();
    /// `index` is the place in imageDatas when the plan was made; `thumbnail` is a file's path.
    void thumbnailWritten(int index, const QString &path, const QString &thumbnail);

private:
    void setIndex(int &member, int index, void (TThumbnailWriter::*changed)());
    QList<int> wantedIndices() const;
    void generate(int index, const QString &path, const std::shared_ptr<ImageFileBackend> &backend);

    std::shared_ptr<ImageFileBackend> m_ownBackend;
    QVariantList m_imageDatas;
    int m_startIndex = 0;
    int m_endIndex = -1;
    int m_currentIndex = -1;
    QSet<QString> m_failed;
    std::stop_source m_plan;
    Mailbox m_mailbox;
    WorkQueue m_work;
};
