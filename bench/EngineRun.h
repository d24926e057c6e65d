#pragma once

#include "contracts/ProcessingBackend.h"

#include <opencv2/core.hpp>

#include <memory>
#include <vector>

/// A filter of a stack as the benchmarks ask for it.
struct Filter {
    QString category;
    QString model;
    QVariantMap params;
};

/// 8 or 16 bit, B G R there and R G B here.
ImageRef toImage(const cv::Mat &mat);
cv::Mat toMat(const ImageData &image);

double megapixels(const cv::Mat &mat);

/// The engine with the shipped models.
class EngineRun {
public:
    EngineRun();
    ~EngineRun();

    /// The processed picture, or the part of it, its time in seconds added to `seconds`; empty when a
    /// run failed.
    cv::Mat run(const cv::Mat &mat, const std::vector<Filter> &filters, double &seconds, cv::Rect part = {});

private:
    std::unique_ptr<ProcessingBackend> m_backend;
    int m_uid = 0;
};
