#pragma once

#include <QString>

#include <optional>

/// How far a batch has come, as its progress line shows it.
struct BatchProgress {
    qsizetype file = 0; ///< the present one, counted from 1
    qsizetype total = 0;
    QString path;
    QString stage;                     ///< what is being done to it; may be empty
    double fraction = -1;              ///< of the present file, 0 to 1; below 0: unknown
    std::optional<qint64> secondsLeft; ///< of the whole batch
};

/// Character cells that a text takes in a terminal: two for wide East Asian characters and
/// pictographs, none for combining ones.
int columnsOf(const QString &text);

/// One line of at most `columns` cells, without control characters. What does not fit is left out
/// in this order: middle of the file's name, time left, stage.
QString progressText(const BatchProgress &progress, int columns);

/// Time left for the whole batch when `elapsed` seconds brought `done` files (a fraction of one
/// counts); nothing while it is too early to tell.
std::optional<qint64> estimateSecondsLeft(double elapsed, double done, double total);
