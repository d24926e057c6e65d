#pragma once

#include <QQuickItem>

// Attached to an item: whether it draws itself. Its children are drawn in any case, and it goes on taking
// events and the keyboard, which a hidden item doesn't.
class PbInk : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Attached to items")
    QML_ATTACHED(PbInk)
    Q_PROPERTY(bool shown READ shown WRITE setShown NOTIFY shownChanged)

public:
    explicit PbInk(QObject *parent);
    static PbInk *qmlAttachedProperties(QObject *item) { return new PbInk(item); }

    bool shown() const;
    void setShown(bool shown);

Q_SIGNALS:
    void shownChanged();

private:
    QQuickItem *m_item;
};
