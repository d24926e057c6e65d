#include "presets/TFilterGenerator.h"

#include "contracts/FilterNames.h"

#include <QDebug>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int DrawnFrom = 3;

/// The table has names of its own for the categories.
QString categoryOf(const QString &name) {
    static const QMap<QString, QString> names = {
        {u"SHARPEN"_s, Categories::Sharpen},   {u"DENOISE"_s, Categories::Denoise},
        {u"UPSCALE"_s, Categories::Enhance},   {u"FACE"_s, Categories::FaceRecovery},
        {u"EXPOSURE"_s, Categories::Exposure}, {u"REMOVE"_s, Categories::Inpaint},
        {u"TEXT"_s, Categories::TextRecovery}, {u"TEMPERATURE"_s, Categories::WhiteBalance},
    };
    return names.value(name, name);
}

QString translated(const QString &name) {
    static const QRegularExpression pattern(u"(\\w+)(-.*)?"_s);
    const QRegularExpressionMatch match = pattern.match(name);
    return match.hasMatch() ? categoryOf(match.captured(1)) + match.captured(2) : name;
}

/// A sequence of the table in the program's names. Rows that share all but the last filter stand together,
/// and a table has few names and very many rows, so that both are worked out once.
class SequenceReader {
public:
    /// False for a sequence with nothing before the last filter.
    bool read(QString text) {
        text.removeIf([](QChar c) { return c == u'[' || c == u']' || c == u'\''; });
        const qsizetype last = text.lastIndexOf(u',');
        if (last < 0)
            return false;
        m_next = category(text.sliced(last + 1).trimmed());
        text.truncate(last);
        if (text != m_before) {
            QStringList parts = text.split(u',');
            for (QString &part : parts)
                part = category(part.trimmed());
            m_key = parts.join(u',');
            m_before = text;
        }
        return true;
    }
    const QString &key() const { return m_key; }
    const QString &next() const { return m_next; }

private:
    const QString &category(const QString &name) {
        auto known = m_known.constFind(name);
        if (known == m_known.cend())
            known = m_known.insert(name, translated(name));
        return *known;
    }

    QHash<QString, QString> m_known;
    QString m_before;
    QString m_key;
    QString m_next;
};

} // namespace

void TFilterGenerator::load(const QString &filename) {
    auto file = std::make_unique<QFile>(filename);
    if (!file->open(QIODevice::ReadOnly | QIODevice::Text)) {
        qCritical() << "Could not open file:" << filename;
        return;
    }
    m_loading.push_back(std::async(std::launch::async, [file = std::move(file)] { return read(*file); }));
}

TFilterGenerator::Table TFilterGenerator::read(QFile &file) {
    Table table;
    QJsonParseError damage;
    const QJsonArray rows = QJsonDocument::fromJson(file.readAll(), &damage).array();
    if (rows.isEmpty())
        qWarning() << "The table of filters holds nothing:" << file.fileName() << damage.errorString();
    SequenceReader sequence;
    for (const auto &element : rows) {
        const QJsonObject row = element.toObject();
        if (sequence.read(row.value("filters_combined"_L1).toString()))
            table[sequence.key()].append({sequence.next(), row.value("count"_L1).toDouble()});
    }
    file.close();
    qInfo() << "Finished loading JSON file:" << file.fileName();
    return table;
}

void TFilterGenerator::takeLoaded() {
    for (std::future<Table> &loading : std::exchange(m_loading, {})) {
        Table table = loading.get();
        if (m_filterSequences.isEmpty())
            std::swap(m_filterSequences, table);
        for (const auto &[key, continuations] : std::as_const(table).asKeyValueRange())
            m_filterSequences[key] += continuations;
    }
}

QString TFilterGenerator::suggestNextFilter(const QStringList &appliedFilters,
                                            const QStringList &excludeFilters) {
    takeLoaded();
    if (appliedFilters.isEmpty())
        return mostUsedSingleFilter(excludeFilters);

    const QString key = appliedFilters.join(u',');
    qDebug() << "Looking for key:" << key;
    const auto found = m_filterSequences.find(key);
    if (found == m_filterSequences.end()) {
        qDebug() << "Key not found in filterSequences:" << key;
        return {};
    }
    std::sort(found->begin(), found->end(),
              [](const Continuation &a, const Continuation &b) { return a.second > b.second; });

    QList<Continuation> top;
    double total = 0;
    for (const Continuation &entry : std::as_const(*found)) {
        if (appliedFilters.contains(entry.first) || excludeFilters.contains(entry.first))
            continue;
        top.append(entry);
        total += entry.second;
        if (top.size() == DrawnFrom)
            break;
    }
    if (top.isEmpty()) {
        qDebug() << "No top filters found for key:" << key;
        return {};
    }
    const double drawn = QRandomGenerator64::global()->generateDouble();
    double cumulative = 0;
    for (const Continuation &entry : std::as_const(top)) {
        cumulative += entry.second / total;
        if (drawn <= cumulative)
            return entry.first;
    }
    return top.last().first;
}

QString TFilterGenerator::mostUsedSingleFilter(const QStringList &excludeFilters) const {
    QMap<QString, double> sums;
    for (const QList<Continuation> &entries : m_filterSequences) {
        for (const Continuation &entry : entries) {
            if (!excludeFilters.contains(entry.first))
                sums[entry.first] += entry.second;
        }
    }
    QString best;
    double bestSum = 0;
    for (auto it = sums.cbegin(); it != sums.cend(); ++it) {
        if (it.value() > bestSum) {
            best = it.key();
            bestSum = it.value();
        }
    }
    qDebug() << "Most used single filter:" << best << "with count:" << bestSum;
    return best;
}
