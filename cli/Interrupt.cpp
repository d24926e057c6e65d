#include "cli/Interrupt.h"

#include <QSocketNotifier>

#ifdef Q_OS_UNIX

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int watchedSignals[] = {SIGINT, SIGTERM};

volatile std::sig_atomic_t writeEnd = -1;

// Only async-signal-safe calls here. A failed write can't be reported to anybody.
void onSignal(int number) {
    const int before = errno;
    const char byte = char(number);
    [[maybe_unused]] const ssize_t written = write(int(writeEnd), &byte, 1);
    errno = before;
}

void watch(int number) {
    struct sigaction action = {};
    sigaction(number, nullptr, &action);
    // Whoever started us in the background may have asked not to be disturbed.
    if (action.sa_handler == SIG_IGN)
        return;
    action = {};
    action.sa_handler = onSignal;
    action.sa_flags = int(SA_RESTART | SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    sigaction(number, &action, nullptr);
}

} // namespace

Interrupt::Interrupt(QObject *parent)
    : QObject(parent) {
    if (pipe(m_pipe) != 0)
        return;
    for (const int end : m_pipe) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    writeEnd = m_pipe[1];
    auto *notifier = new QSocketNotifier(m_pipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &Interrupt::drain);
    for (const int number : watchedSignals)
        watch(number);
}

Interrupt::~Interrupt() {
    if (m_pipe[0] < 0)
        return;
    // The handler stays: a Ctrl-C that comes while the process tidies up would make a failure of
    // finished work. The one after it ends a process that hangs.
    writeEnd = -1;
    qDeleteAll(findChildren<QSocketNotifier *>());
    for (const int end : m_pipe)
        close(end);
}

void Interrupt::drain() {
    char number = 0;
    while (read(m_pipe[0], &number, 1) == 1)
        Q_EMIT interrupted(128 + number);
}

#else

// The system's own handling of Ctrl-C ends the process; a write in progress leaves the old file.
Interrupt::Interrupt(QObject *parent)
    : QObject(parent) {
}
Interrupt::~Interrupt() = default;
void Interrupt::drain() {
}

#endif
