#include "EngineRun.h"

#include "engine/EngineBackend.h"

#include <QElapsedTimer>

#include <opencv2/imgproc.hpp>

#include <cstdio>

using namespace Qt::StringLiterals;

ImageRef toImage(const cv::Mat &mat) {
    const SampleType type = mat.depth() == CV_16U ? SampleType::UInt16 : SampleType::UInt8;
    auto image = std::make_shared<ImageData>(mat.cols, mat.rows, 3, type);
    cv::Mat rgb(mat.rows, mat.cols, mat.type(), image->row(0), image->rowBytes());
    cv::cvtColor(mat, rgb, cv::COLOR_BGR2RGB);
    return image;
}

cv::Mat toMat(const ImageData &image) {
    const int depth = image.type() == SampleType::UInt16 ? CV_16U : CV_8U;
    const cv::Mat rgb(image.height(), image.width(), CV_MAKETYPE(depth, 3),
                      const_cast<std::byte *>(image.row(0)), image.rowBytes());
    cv::Mat mat;
    cv::cvtColor(rgb, mat, cv::COLOR_RGB2BGR);
    return mat;
}

double megapixels(const cv::Mat &mat) {
    return double(mat.total()) / 1e6;
}

EngineRun::EngineRun()
    : m_backend(makeEngineBackend()) {
    m_backend->catalogue(QStringLiteral(ORVANE_MODELS));
}

EngineRun::~EngineRun() = default;

cv::Mat EngineRun::run(const cv::Mat &mat, const std::vector<Filter> &filters, double &seconds,
                       cv::Rect part) {
    ProcRequest request;
    request.input.uid = QString::number(++m_uid);
    request.input.image = toImage(mat);
    request.region =
        part.empty() ? QRect(0, 0, mat.cols, mat.rows) : QRect(part.x, part.y, part.width, part.height);
    request.full = true;
    for (const Filter &filter : filters) {
        request.filterOrder.append(filter.category);
        request.params.insert(filter.category, QVariantMap{{u"category"_s, filter.category},
                                                           {u"model"_s, filter.model},
                                                           {u"params"_s, filter.params},
                                                           {u"enabled"_s, true}});
    }
    QElapsedTimer timer;
    timer.start();
    const ProcResult result = m_backend->process(request, {});
    seconds += double(timer.nsecsElapsed()) / 1e9;
    if (!result.image)
        std::fprintf(stderr, "engine: %s\n", qPrintable(result.error));
    return result.image ? toMat(*result.image) : cv::Mat();
}
