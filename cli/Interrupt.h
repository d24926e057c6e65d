#pragma once

#include <QObject>

/// Turns Ctrl-C (and a request to terminate) into a signal on the main thread. One object at a
/// time. The second Ctrl-C ends the process at once; a first one that comes after the object is
/// gone does nothing.
class Interrupt : public QObject {
    Q_OBJECT
public:
    explicit Interrupt(QObject *parent = nullptr);
    ~Interrupt() override;

Q_SIGNALS:
    /// `exitCode` is what shells expect of a process that ends for this: 130 for Ctrl-C.
    void interrupted(int exitCode);

private:
    void drain();

    int m_pipe[2] = {-1, -1};
};
