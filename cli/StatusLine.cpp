#include "cli/StatusLine.h"

#include <cstdio>
#include <mutex>

namespace {

std::mutex &terminal() {
    static std::mutex mutex;
    return mutex;
}

int shownColumns = 0;

// Blanks instead of an escape sequence: they work on every terminal.
void wipe() {
    if (shownColumns == 0)
        return;
    const QByteArray bytes = '\r' + QByteArray(shownColumns, ' ') + '\r';
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stderr);
    std::fflush(stderr);
    shownColumns = 0;
}

} // namespace

void StatusLine::show(const QString &text, int columns) {
    const std::lock_guard lock(terminal());
    const int rest = std::max(0, shownColumns - columns);
    const QByteArray bytes = '\r' + text.toUtf8() + QByteArray(rest, ' ') + QByteArray(rest, '\b');
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stderr);
    std::fflush(stderr);
    shownColumns = columns;
}

void StatusLine::erase() {
    const std::lock_guard lock(terminal());
    wipe();
}

StatusLine::Pause::Pause() {
    terminal().lock();
    wipe();
}

StatusLine::Pause::~Pause() {
    terminal().unlock();
}
