#pragma once

#include <QColor>
#include <QPointF>
#include <QSGGeometry>
#include <QSizeF>
#include <QVarLengthArray>

// What a box looks like, in device-independent pixels; `pixel` is the size of a device pixel.
struct PbBoxShape {
    QSizeF size;
    qreal radius = 0;
    qreal borderWidth = 0;
    QColor fill;
    QColor border;
    qreal pixel = 1;
};

// The triangles of one part of a rounded box. The parts do not overlap, so that a half transparent box is
// even.
class PbBoxMesh {
public:
    enum class Edge { Top, Right, Bottom, Left };

    // What lies within the edges, in one colour.
    static PbBoxMesh inside(const PbBoxShape &shape);

    // One edge with its border, smoothed over a device pixel. The corners are part of the top and the bottom.
    static PbBoxMesh edge(const PbBoxShape &shape, Edge edge);

    void copyTo(QSGGeometry &geometry) const;

private:
    // A colour as the scene graph wants it: multiplied by its alpha.
    struct Ink {
        explicit Ink(const QColor &color);
        uchar red;
        uchar green;
        uchar blue;
        uchar alpha;
    };
    // A line along the edge, so far from it inwards.
    struct Line {
        qreal depth;
        Ink ink;
    };
    using Lines = QVarLengthArray<Line, 4>;

    static Lines linesOf(const PbBoxShape &shape);
    static int segmentsOf(const PbBoxShape &shape);
    void addQuad(qreal left, qreal top, qreal right, qreal bottom, const QColor &color);
    void addCorner(QPointF middle, int quarter, const PbBoxShape &shape, const Lines &lines);
    void addStop(QPointF middle, QPointF outwards, qreal radius, const Lines &lines);
    void joinLastStops(const Lines &lines);
    void addPoint(QPointF point, const Ink &ink);
    void addTriangle(int a, int b, int c);

    QVarLengthArray<QSGGeometry::ColoredPoint2D, 96> m_points;
    QVarLengthArray<quint16, 320> m_indices;
    int m_lastStop = -1; // where the points of the latest stop and of the one before begin
    int m_stopBefore = -1;
};
