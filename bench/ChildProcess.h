#pragma once

#include <QByteArray>
#include <QStringList>

/// What a program used from its start to its end.
struct ChildUse {
    int exitCode = -1; ///< 127: it could not be started; -1: it was killed
    double seconds = 0;
    double peakMegabytes = 0; ///< largest resident set, 1 MB = 1,000,000 bytes
    QByteArray errors;        ///< its standard error
};

/// Whether this system reports what another process used.
bool canRunChildren();

/// Runs the program to its end; its standard output is dropped.
ChildUse runChild(const QString &program, const QStringList &arguments);
