#include "PbBox.h"

#include "PbBoxMesh.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGGeometryNode>
#include <QSGImageNode>
#include <QSGRendererInterface>
#include <QSGVertexColorMaterial>

#include <array>

namespace {

class PartNode : public QSGGeometryNode {
public:
    PartNode()
        : m_geometry(QSGGeometry::defaultAttributes_ColoredPoint2D(), 0) {
        setGeometry(&m_geometry);
        setMaterial(&m_material);
        setFlag(OwnedByParent, false);
        m_geometry.setDrawingMode(QSGGeometry::DrawTriangles);
    }

    void set(const PbBoxMesh &mesh, bool blending) {
        mesh.copyTo(m_geometry);
        m_material.setFlag(QSGMaterial::Blending, blending);
        markDirty(DirtyGeometry | DirtyMaterial);
    }

private:
    QSGGeometry m_geometry;
    QSGVertexColorMaterial m_material;
};

class BoxNode : public QSGNode {
public:
    BoxNode() {
        appendChildNode(&m_inside);
        for (PartNode &edge : m_edges)
            appendChildNode(&edge);
    }

    void set(const PbBoxShape &shape) {
        using Edge = PbBoxMesh::Edge;
        m_inside.set(PbBoxMesh::inside(shape), shape.fill.alpha() < 255);
        for (const Edge edge : {Edge::Top, Edge::Right, Edge::Bottom, Edge::Left})
            m_edges[size_t(edge)].set(PbBoxMesh::edge(shape, edge), true);
    }

private:
    PartNode m_inside;
    std::array<PartNode, 4> m_edges;
};

} // namespace

void PbBoxBorder::setWidth(qreal width) {
    if (m_width == width)
        return;
    m_width = width;
    Q_EMIT changed();
}

void PbBoxBorder::setColor(const QColor &color) {
    if (m_color == color)
        return;
    m_color = color;
    Q_EMIT changed();
}

PbBox::PbBox(QQuickItem *parent)
    : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void PbBox::setColor(const QColor &color) {
    if (m_color == color)
        return;
    m_color = color;
    update();
    Q_EMIT colorChanged();
}

void PbBox::setRadius(qreal radius) {
    if (m_radius == radius)
        return;
    m_radius = radius;
    update();
    Q_EMIT radiusChanged();
}

PbBoxBorder *PbBox::border() {
    if (!m_border) {
        m_border = new PbBoxBorder(this);
        connect(m_border, &PbBoxBorder::changed, this, &QQuickItem::update);
    }
    return m_border;
}

QSGNode *PbBox::updatePaintNode(QSGNode *node, UpdatePaintNodeData *) {
    if (width() <= 0 || height() <= 0) {
        delete node;
        return nullptr;
    }
    // That renderer draws pictures and none of our own figures.
    if (window()->rendererInterface()->graphicsApi() == QSGRendererInterface::Software)
        return painted(node);
    auto *box = node ? static_cast<BoxNode *>(node) : new BoxNode;
    box->set({size(), m_radius, m_border ? m_border->width() : 0, m_color,
              m_border ? m_border->color() : QColor(Qt::transparent),
              1 / window()->effectiveDevicePixelRatio()});
    return box;
}

QSGNode *PbBox::painted(QSGNode *node) const {
    const qreal ratio = window()->effectiveDevicePixelRatio();
    QImage image((size() * ratio).toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal line = m_border && m_border->color().alpha() > 0 ? m_border->width() : 0;
    painter.setPen(line > 0 ? QPen(m_border->color(), line) : QPen(Qt::NoPen));
    painter.setBrush(m_color);
    painter.drawRoundedRect(
        QRectF(QPointF(), size()).marginsRemoved({line / 2, line / 2, line / 2, line / 2}),
        m_radius - line / 2, m_radius - line / 2);
    painter.end();

    auto *picture = node ? static_cast<QSGImageNode *>(node) : window()->createImageNode();
    picture->setOwnsTexture(true);
    picture->setTexture(window()->createTextureFromImage(image));
    picture->setRect(QRectF(QPointF(), size()));
    return picture;
}

void PbBox::geometryChange(const QRectF &now, const QRectF &before) {
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size())
        update();
}

void PbBox::itemChange(ItemChange change, const ItemChangeData &data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        update();
}
