#include "host/InputGathering.h"

#include "frontends/TImageUtils.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace {

class Gatherer {
public:
    explicit Gatherer(const std::stop_token &stop)
        : m_stop(stop) {
        const QStringList formats = TImageUtils::supportedFileFormats();
        m_formats = QSet<QString>(formats.begin(), formats.end());
    }

    bool isSupported(const QString &path) const {
        return m_formats.contains(QFileInfo(path).suffix().toLower());
    }

    void add(const QString &path) {
        if (m_input.images.size() < MaxGatheredFiles && !m_seen.contains(path)) {
            m_seen.insert(path);
            m_input.images.append(path);
        }
    }

    void addFolder(const QString &folder) {
        QStringList found;
        QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
        while (!m_stop.stop_requested() && walk.hasNext() && found.size() < MaxGatheredFiles) {
            const QString path = walk.next();
            if (isSupported(path))
                found.append(path);
        }
        found.sort();
        for (const QString &path : std::as_const(found))
            add(path);
        if (found.isEmpty())
            addInvalid(folder);
    }

    void addInvalid(const QString &path) { m_input.invalid.append(path); }
    GatheredInput take() { return std::move(m_input); }

private:
    std::stop_token m_stop;
    QSet<QString> m_formats;
    QSet<QString> m_seen;
    GatheredInput m_input;
};

} // namespace

GatheredInput gatherInput(const QStringList &entries, const std::stop_token &stop) {
    Gatherer gatherer(stop);
    for (const QString &entry : entries) {
        if (entry.isEmpty())
            continue;
        const QFileInfo info(entry);
        if (info.isDir())
            gatherer.addFolder(info.absoluteFilePath());
        else if (info.isFile() && gatherer.isSupported(entry))
            gatherer.add(info.absoluteFilePath());
        else if (info.exists() || !entry.startsWith(QLatin1Char('-')))
            gatherer.addInvalid(info.absoluteFilePath());
    }
    return gatherer.take();
}

bool namesFolder(const QStringList &entries) {
    return std::ranges::any_of(entries, [](const QString &entry) { return QFileInfo(entry).isDir(); });
}
