#include "PbBoxMesh.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr int fewestSegments = 3;
constexpr int mostSegments = 24;

qreal borderOf(const PbBoxShape &shape) {
    return shape.border.alpha() > 0 ? std::max(shape.borderWidth, 0.0) : 0;
}

// How far the smoothed edge reaches inwards.
qreal depthOf(const PbBoxShape &shape) {
    return borderOf(shape) + shape.pixel / 2;
}

// A corner has room for its edge: a square one is round by that much.
qreal radiusOf(const PbBoxShape &shape) {
    const qreal most = std::min(shape.size.width(), shape.size.height()) / 2;
    return std::clamp(shape.radius, std::min(depthOf(shape), most), most);
}

} // namespace

PbBoxMesh::Ink::Ink(const QColor &color) {
    const QRgb rgb = qPremultiply(color.rgba());
    red = uchar(qRed(rgb));
    green = uchar(qGreen(rgb));
    blue = uchar(qBlue(rgb));
    alpha = uchar(qAlpha(rgb));
}

PbBoxMesh PbBoxMesh::inside(const PbBoxShape &shape) {
    PbBoxMesh mesh;
    const qreal width = shape.size.width();
    const qreal height = shape.size.height();
    const qreal radius = radiusOf(shape);
    const qreal depth = std::min(depthOf(shape), radius);
    mesh.addQuad(radius, depth, width - radius, height - depth, shape.fill);
    mesh.addQuad(depth, radius, radius, height - radius, shape.fill);
    mesh.addQuad(width - radius, radius, width - depth, height - radius, shape.fill);
    return mesh;
}

PbBoxMesh PbBoxMesh::edge(const PbBoxShape &shape, Edge edge) {
    PbBoxMesh mesh;
    const Lines lines = linesOf(shape);
    if (lines.isEmpty())
        return mesh;
    const qreal radius = radiusOf(shape);
    const qreal right = shape.size.width() - radius;
    const qreal bottom = shape.size.height() - radius;
    switch (edge) {
    case Edge::Top:
        mesh.addCorner({radius, radius}, 2, shape, lines);
        mesh.addCorner({right, radius}, 3, shape, lines);
        break;
    case Edge::Bottom:
        mesh.addCorner({right, bottom}, 0, shape, lines);
        mesh.addCorner({radius, bottom}, 1, shape, lines);
        break;
    case Edge::Right:
    case Edge::Left: {
        if (bottom <= radius)
            break;
        const qreal x = edge == Edge::Right ? right : radius;
        const QPointF outwards(edge == Edge::Right ? 1 : -1, 0);
        mesh.addStop({x, radius}, outwards, radius, lines);
        mesh.addStop({x, bottom}, outwards, radius, lines);
        mesh.joinLastStops(lines);
        break;
    }
    }
    return mesh;
}

// From the inside outwards; the last one is transparent.
PbBoxMesh::Lines PbBoxMesh::linesOf(const PbBoxShape &shape) {
    Lines lines;
    const qreal border = borderOf(shape);
    const qreal half = shape.pixel / 2;
    const QColor outer = border > 0 ? shape.border : shape.fill;
    if (outer.alpha() == 0)
        return lines;
    if (border > 0)
        lines.append({border + half, Ink(shape.fill)});
    if (border > shape.pixel)
        lines.append({border - half, Ink(shape.border)});
    lines.append({half, Ink(outer)});
    lines.append({-half, Ink(Qt::transparent)});
    return lines;
}

// Chords stay within a tenth of a device pixel of the arc.
int PbBoxMesh::segmentsOf(const PbBoxShape &shape) {
    const int wanted = int(std::ceil(2 * std::sqrt(radiusOf(shape) / shape.pixel)));
    return std::clamp(wanted, fewestSegments, mostSegments);
}

void PbBoxMesh::addQuad(qreal left, qreal top, qreal right, qreal bottom, const QColor &color) {
    if (right <= left || bottom <= top || color.alpha() == 0)
        return;
    const int first = int(m_points.size());
    const Ink ink(color);
    for (const QPointF corner :
         {QPointF(left, top), QPointF(right, top), QPointF(left, bottom), QPointF(right, bottom)})
        addPoint(corner, ink);
    addTriangle(first, first + 1, first + 2);
    addTriangle(first + 1, first + 3, first + 2);
}

// Quarters are counted clockwise from the right bottom one.
void PbBoxMesh::addCorner(QPointF middle, int quarter, const PbBoxShape &shape, const Lines &lines) {
    const qreal radius = radiusOf(shape);
    const int segments = segmentsOf(shape);
    const bool filled = shape.fill.alpha() > 0;
    const int centre = int(m_points.size());
    if (filled)
        addPoint(middle, Ink(shape.fill));
    for (int i = 0; i <= segments; ++i) {
        const qreal angle = M_PI_2 * (quarter + qreal(i) / segments);
        addStop(middle, {std::cos(angle), std::sin(angle)}, radius, lines);
        joinLastStops(lines);
        if (filled && i > 0)
            addTriangle(centre, m_stopBefore, m_lastStop);
    }
}

// The lines' points at one place of the edge.
void PbBoxMesh::addStop(QPointF middle, QPointF outwards, qreal radius, const Lines &lines) {
    m_stopBefore = m_lastStop;
    m_lastStop = int(m_points.size());
    for (const Line &line : lines)
        addPoint(middle + outwards * std::max(radius - line.depth, 0.0), line.ink);
}

void PbBoxMesh::joinLastStops(const Lines &lines) {
    if (m_stopBefore < 0)
        return;
    for (int k = 0; k + 1 < lines.size(); ++k) {
        addTriangle(m_stopBefore + k, m_stopBefore + k + 1, m_lastStop + k);
        addTriangle(m_stopBefore + k + 1, m_lastStop + k + 1, m_lastStop + k);
    }
}

void PbBoxMesh::addPoint(QPointF point, const Ink &ink) {
    QSGGeometry::ColoredPoint2D colored;
    colored.set(float(point.x()), float(point.y()), ink.red, ink.green, ink.blue, ink.alpha);
    m_points.append(colored);
}

void PbBoxMesh::addTriangle(int a, int b, int c) {
    for (const int index : {a, b, c})
        m_indices.append(quint16(index));
}

void PbBoxMesh::copyTo(QSGGeometry &geometry) const {
    geometry.allocate(int(m_points.size()), int(m_indices.size()));
    std::copy(m_points.begin(), m_points.end(), geometry.vertexDataAsColoredPoint2D());
    std::copy(m_indices.begin(), m_indices.end(), geometry.indexDataAsUShort());
}
