#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>
#include <Qt>

/// The rules of a window without a frame of the system's, in window coordinates.
namespace frameGeometry {

/// How far from an edge the pointer takes hold of it, in logical pixels.
inline constexpr double GripWidth = 6;

/// The edges under a point of the window; none for a window that can't be resized (maximized).
Qt::Edges edgesAt(const QPointF &point, const QSizeF &window, bool resizable);

Qt::CursorShape cursorFor(Qt::Edges edges);

/// The rectangle after dragging `edges` by `delta`; never smaller than `minimum`, the opposite edges stay.
QRect resized(const QRect &start, Qt::Edges edges, const QPoint &delta, const QSize &minimum);

} // namespace frameGeometry
