#pragma once

#include <QList>
#include <QSet>
#include <QString>

/// What became of each file of a batch that goes on past failures. A file's first outcome counts.
class BatchOutcome {
public:
    void succeeded(const QString &path);
    void failed(const QString &path, const QString &reason);

    qsizetype failures() const { return m_failures.size(); }
    qsizetype settled() const { return m_settled.size(); }

    /// The failed files with their reasons, one a line, below a line of totals; empty when there are none.
    /// Control characters are written as escapes: a file's name must not act on a terminal.
    QString report() const;

private:
    struct Failure {
        QString path;
        QString reason;
    };

    bool settle(const QString &path);

    QSet<QString> m_settled;
    QList<Failure> m_failures;
};
