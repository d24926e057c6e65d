#include "frontends/Mailbox.h"

#include <QCoreApplication>
#include <QEvent>

void Mailbox::post(Letter letter) {
    {
        const std::scoped_lock lock(m_mutex);
        m_letters.push_back(std::move(letter));
    }
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

// One letter for each event keeps the order when a receiver runs a nested event loop.
void Mailbox::customEvent(QEvent *) {
    Letter letter;
    {
        const std::scoped_lock lock(m_mutex);
        letter = std::move(m_letters.front());
        m_letters.pop_front();
    }
    letter();
}
