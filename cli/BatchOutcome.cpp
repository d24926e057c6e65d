#include "cli/BatchOutcome.h"

using namespace Qt::StringLiterals;

namespace {

QString visible(const QString &text) {
    QString result;
    for (const QChar c : text) {
        if (c == u'\n')
            result += u"\\n"_s;
        else if (c.category() == QChar::Other_Control)
            result += u"\\x%1"_s.arg(uint(c.unicode()), 2, 16, QLatin1Char('0'));
        else
            result += c;
    }
    return result;
}

} // namespace

void BatchOutcome::succeeded(const QString &path) {
    settle(path);
}

void BatchOutcome::failed(const QString &path, const QString &reason) {
    if (settle(path))
        m_failures.append({path, reason});
}

bool BatchOutcome::settle(const QString &path) {
    if (m_settled.contains(path))
        return false;
    m_settled.insert(path);
    return true;
}

QString BatchOutcome::report() const {
    if (m_failures.isEmpty())
        return {};
    QString text = u"%1 of %2 files failed:\n"_s.arg(m_failures.size()).arg(m_settled.size());
    for (const Failure &failure : m_failures)
        text += u"    "_s + visible(failure.path) + u": "_s + visible(failure.reason) + u'\n';
    return text;
}
