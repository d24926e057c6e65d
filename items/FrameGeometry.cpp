#include "items/FrameGeometry.h"

#include <algorithm>

namespace frameGeometry {

Qt::Edges edgesAt(const QPointF &point, const QSizeF &window, bool resizable) {
    Qt::Edges edges;
    if (!resizable)
        return edges;
    if (point.x() < GripWidth)
        edges |= Qt::LeftEdge;
    else if (point.x() >= window.width() - GripWidth)
        edges |= Qt::RightEdge;
    if (point.y() < GripWidth)
        edges |= Qt::TopEdge;
    else if (point.y() >= window.height() - GripWidth)
        edges |= Qt::BottomEdge;
    return edges;
}

Qt::CursorShape cursorFor(Qt::Edges edges) {
    const bool horizontal = edges & (Qt::LeftEdge | Qt::RightEdge);
    const bool vertical = edges & (Qt::TopEdge | Qt::BottomEdge);
    if (horizontal && vertical)
        return edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge)
                   ? Qt::SizeFDiagCursor
                   : Qt::SizeBDiagCursor;
    if (horizontal)
        return Qt::SizeHorCursor;
    return vertical ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

QRect resized(const QRect &start, Qt::Edges edges, const QPoint &delta, const QSize &minimum) {
    QRect rect = start;
    if (edges & Qt::LeftEdge)
        rect.setLeft(std::min(start.left() + delta.x(), start.right() + 1 - minimum.width()));
    if (edges & Qt::RightEdge)
        rect.setRight(std::max(start.right() + delta.x(), start.left() + minimum.width() - 1));
    if (edges & Qt::TopEdge)
        rect.setTop(std::min(start.top() + delta.y(), start.bottom() + 1 - minimum.height()));
    if (edges & Qt::BottomEdge)
        rect.setBottom(std::max(start.bottom() + delta.y(), start.top() + minimum.height() - 1));
    return rect;
}

} // namespace frameGeometry
