#pragma once

#include <QList>
#include <QSet>

/// Values in the order of their insertion, each at most once. Asking whether a value is there takes
/// constant time, so that thousands of images can be opened or selected at once.
template <typename T>
class OrderedSet {
public:
    const QList<T> &list() const { return m_list; }
    qsizetype size() const { return m_list.size(); }
    bool isEmpty() const { return m_list.isEmpty(); }
    bool contains(const T &value) const { return m_known.contains(value); }
    bool holdsIndex(qint64 index) const { return index >= 0 && index < m_list.size(); }

    void reserve(qsizetype size) {
        m_list.reserve(size);
        m_known.reserve(size);
    }

    /// False when the value was there already.
    bool insert(const T &value) {
        const qsizetype before = m_known.size();
        m_known.insert(value);
        if (m_known.size() == before)
            return false;
        m_list.append(value);
        return true;
    }

    /// False when the value was not there.
    bool remove(const T &value) {
        if (!m_known.remove(value))
            return false;
        m_list.removeOne(value);
        return true;
    }

    /// Removes many in one pass over the list.
    void subtract(const QSet<T> &values) {
        m_known.subtract(values);
        m_list.removeIf([&values](const T &value) { return values.contains(value); });
    }

    void clear() {
        m_list.clear();
        m_known.clear();
    }

private:
    QList<T> m_list;
    QSet<T> m_known;
};
