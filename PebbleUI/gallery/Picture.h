#pragma once

#include <QString>

class QQuickWindow;

// Writes what `window` shows, once it has come to rest, as a PNG. Returns an empty text, or what went
// wrong: nothing was drawn, the picture is of one colour, or the file could not be written.
QString savePicture(QQuickWindow &window, const QString &file);
