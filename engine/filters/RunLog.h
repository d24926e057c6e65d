#pragma once

#include <QDebug>
#include <QSet>
#include <QString>

/// The log lines of one run, each written once however often its cause comes up.
class RunLog {
public:
    /// Something that was asked for and can't be done as asked.
    void note(const QString &line) {
        if (isNew(line))
            qWarning().noquote() << "[ENGINE]" << line;
    }
    /// Something that is worth knowing and is no fault.
    void inform(const QString &line) {
        if (isNew(line))
            qInfo().noquote() << "[ENGINE]" << line;
    }

private:
    bool isNew(const QString &line) {
        const qsizetype before = m_written.size();
        m_written.insert(line);
        return m_written.size() > before;
    }

    QSet<QString> m_written;
};
