#pragma once

#include <QString>

/// The text that --help prints, line feeds included.
QString usageText();

/// Writes it to standard output.
void printUsage();
