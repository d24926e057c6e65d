#pragma once

#include <QStringList>

#include <opencv2/core.hpp>

#include <vector>

/// A photograph that can stand for a clean one: reduced, so that nothing of its own noise and
/// compression is left, and cut out of the middle.
struct Photograph {
    QString name;
    cv::Mat clean;  ///< 8 bit, B G R
    cv::Mat larger; ///< the same part before it was reduced the last time, by LargerBy
    static constexpr double LargerBy = 1.6;
};

/// The photographs among the desktop pictures of the machine (packages mate-backgrounds,
/// budgie-backgrounds, lomiri-wallpapers-*, plasma-workspace-wallpapers), as far as installed.
/// Drawings and other unsuitable ones are left out by name.
QStringList installedPhotographs();

/// Those that can be read and are large enough; the factors of reduction go round from 0.35 to 0.6.
std::vector<Photograph> readPhotographs(const QStringList &paths, cv::Size size);
