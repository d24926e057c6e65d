#pragma once

#include <QString>
#include <QStringList>

/// The name of the session list in the log folder.
inline QString sessionListName() {
    return QStringLiteral("lastSessionFiles.txt");
}

/// The files that the last session had open, as AppState wrote them, each line trimmed. Empty, with
/// a line in the log, when the list can't be read or is larger than any session makes it.
QStringList readSessionList(const QString &logDirectory);
