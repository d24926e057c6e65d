#pragma once

#include "engine/core/FloatTile.h"

#include <QByteArray>
#include <QString>

#include <stop_token>

/// One operation of a run, its tables prepared. run() is called for many tiles at once and must
/// give a pixel the same value whatever tile it lies in.
class Stage {
public:
    virtual ~Stage() = default;

    virtual QString name() const = 0; ///< for the progress read-out

    /// Size of this stage's output for the whole picture.
    virtual QSize outputSize(const QSize &input) const { return input; }
    /// The output pixels that stand for an input region.
    virtual TRect outputRegion(const TRect &input) const { return input; }
    /// The input pixels that an output region depends on; may reach beyond the picture.
    virtual TRect inputRegion(const TRect &output) const = 0;

    /// Output pixels per input pixel.
    virtual double scale() const { return 1; }
    /// Whether run() writes alpha; otherwise it is carried over.
    virtual bool writesAlpha() const { return false; }
    virtual int tileSide() const { return 384; }
    /// Rough time for one output pixel, for progress.
    virtual double cost() const { return 1; }

    /// `in` covers inputRegion(out.area). May return early, leaving `out` unfinished, once a stop
    /// is requested; looks at least every few milliseconds. Returns what went wrong, mostly nothing.
    virtual QString run(const FloatTile &in, FloatTile &out, Scratch &scratch,
                        const std::stop_token &stop) const = 0;
};
