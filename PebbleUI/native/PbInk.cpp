#include "PbInk.h"

PbInk::PbInk(QObject *parent)
    : QObject(parent)
    , m_item(qobject_cast<QQuickItem *>(parent)) {
    if (!m_item)
        qWarning("PebbleUI: PbInk is attached to something that is no item");
}

bool PbInk::shown() const {
    return m_item && m_item->flags().testFlag(QQuickItem::ItemHasContents);
}

void PbInk::setShown(bool shown) {
    if (!m_item || shown == this->shown())
        return;
    m_item->setFlag(QQuickItem::ItemHasContents, shown);
    if (shown)
        m_item->update();
    Q_EMIT shownChanged();
}
