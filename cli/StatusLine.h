#pragma once

#include <QString>

/// The one line at the bottom of a terminal that is rewritten in place. It is on standard
/// error; whoever writes anything else to the terminal, from whatever thread, holds a Pause.
class StatusLine {
public:
    /// Replaces the line. `columns` is the width of the text in character cells.
    static void show(const QString &text, int columns);
    static void erase();

    /// Takes the line away and keeps it away until the object is gone.
    class Pause {
    public:
        Pause();
        ~Pause();
        Pause(const Pause &) = delete;
        Pause &operator=(const Pause &) = delete;
    };
};
