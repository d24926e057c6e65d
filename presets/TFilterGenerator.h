#pragma once

#include <QMap>
#include <QObject>
#include <QPair>
#include <QStringList>
#include <QtQmlIntegration/qqmlintegration.h>

#include <future>
#include <vector>

class QFile;

/// Suggests the filter that users most often took next, from a table of counts. Knows nothing of the
/// image. A filter is written as its category, a hyphen and the subject: "Sharpen-Subject", "Enhance-".
class TFilterGenerator : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Cannot create TFilterGenerator from QML")
public:
    using QObject::QObject;

    /// Adds a JSON table of { "filters_combined": "['A-x', 'B-y']", "count": n }. A missing file is
    /// logged and leaves the table as it is; a malformed row is passed over. The window is not kept waiting:
    /// the table is read on a thread, and the first question waits for it.
    Q_INVOKABLE
    void load(const QString &filename);

    /// Draws among the three most frequent continuations by their counts; with nothing applied, the most
    /// used single filter. Empty when there is none.
    Q_INVOKABLE
    QString suggestNextFilter(const QStringList &appliedFilters, const QStringList &excludeFilters = {});

private:
    using Continuation = QPair<QString, double>;
    using Table = QMap<QString, QList<Continuation>>;

    static Table read(QFile &file);
    void takeLoaded();
    QString mostUsedSingleFilter(const QStringList &excludeFilters) const;

    Table m_filterSequences;
    std::vector<std::future<Table>> m_loading;
};
