#pragma once

#include <QColor>
#include <QQuickItem>

// The line round a box. None while its width is 0.
class PbBoxBorder : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(qreal width READ width WRITE setWidth NOTIFY changed)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)

public:
    using QObject::QObject;

    qreal width() const { return m_width; }
    void setWidth(qreal width);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

Q_SIGNALS:
    void changed();

private:
    qreal m_width = 0;
    QColor m_color = Qt::black;
};

// A rectangle with round corners and a border, for what lies behind a control's text. The toolkit's own is
// one half transparent figure, and no text over one can be drawn together with the text over another; here
// only the corners are, so that a panel's boxes, texts and icons take a few drawing steps and not one each.
class PbBox : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY radiusChanged)
    Q_PROPERTY(PbBoxBorder *border READ border CONSTANT)

public:
    explicit PbBox(QQuickItem *parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    qreal radius() const { return m_radius; }
    void setRadius(qreal radius);
    PbBoxBorder *border();

Q_SIGNALS:
    void colorChanged();
    void radiusChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    QSGNode *painted(QSGNode *node) const;

    QColor m_color = Qt::white;
    qreal m_radius = 0;
    PbBoxBorder *m_border = nullptr;
};
