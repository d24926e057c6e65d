#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>

/// Brings results of worker threads to the thread that owns a front end, in the order of posting,
/// one delivery for each turn of the event loop. Deliveries still unread when the mailbox goes are dropped,
/// so a front end that joins its workers before the mailbox dies never hears from them again.
class Mailbox : public QObject {
public:
    using Delivery = std::function<void()>;

    /// Callable from any thread.
    void post(Delivery delivery);

protected:
    void customEvent(QEvent *event) override;

private:
    std::mutex m_mutex;
    std::deque<Delivery> m_deliveries;
};
