#pragma once

#include <QString>

/// The words that answer --help, line feeds included.
QString usageText();

/// Writes them to standard output.
void printUsage();
