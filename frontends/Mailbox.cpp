#include "frontends/Mailbox.h"

#include <QCoreApplication>
#include <QEvent>

void Mailbox::post(Delivery delivery) {
    {
        const std::scoped_lock lock(m_mutex);
        m_deliveries.push_back(std::move(delivery));
    }
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

// One delivery for each event keeps the order when a receiver runs a nested event loop.
void Mailbox::customEvent(QEvent *) {
    Delivery delivery;
    {
        const std::scoped_lock lock(m_mutex);
        delivery = std::move(m_deliveries.front());
        m_deliveries.pop_front();
    }
    delivery();
}
