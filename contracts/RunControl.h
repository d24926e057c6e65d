#pragma once

#include <functional>
#include <stop_token>

#include <QString>

/// What a front end gives to long work: a token to look at, and where to report. `progress` takes
/// a fraction from 0 to 1 and a short stage name; it may be called from any thread and may be empty.
struct RunControl {
    std::stop_token stop;
    std::function<void(double fraction, const QString &stage)> progress;

    bool stopped() const { return stop.stop_requested(); }
    void report(double fraction, const QString &stage) const {
        if (progress)
            progress(fraction, stage);
    }
};
