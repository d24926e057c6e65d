#pragma once

#include <QString>

/// The batch run's own output on the two standard streams, as UTF-8 whatever the system's encoding.
/// Each call takes the status line away first and leaves its text flushed.
namespace console {

void out(const QString &text);
void err(const QString &text);

void outLine(const QString &text);
void errLine(const QString &text);

} // namespace console
