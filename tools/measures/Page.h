#pragma once

#include "Measurement.h"
#include "Networks.h"

#include <QString>

/// What the photographs are.
struct PageSource {
    int photographs = 0;
    QString folder{}; ///< name of the folder that they were given in; empty for those of the machine
};

/// Writes README.md and the pictures of a case's first appearance into a folder, which is made. False
/// when something could not be written.
bool writePage(const QString &folder, const std::vector<Case> &cases, const std::vector<Outcome> &outcomes,
               const std::vector<NetworkCost> &networks, const PageSource &source);
