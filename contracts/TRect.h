#pragma once

#include <QRect>

/// A region of pixels: left, top, width, height in whole pixels of the image it belongs to.
struct TRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    TRect() = default;
    TRect(int left, int top, int w, int h)
        : x(left)
        , y(top)
        , width(w)
        , height(h) {}
    explicit TRect(const QRect &r)
        : TRect(r.x(), r.y(), r.width(), r.height()) {}

    operator QRect() const { return {x, y, width, height}; }
    bool isEmpty() const { return width <= 0 || height <= 0; }
    friend bool operator==(const TRect &, const TRect &) = default;
};
