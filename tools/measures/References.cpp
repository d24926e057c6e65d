#include "References.h"

#include <opencv2/imgproc.hpp>
#include <opencv2/photo.hpp>

namespace {

std::vector<cv::Mat> enlarged(const cv::Mat &small, int scale, int method) {
    cv::Mat out;
    cv::resize(small, out, {}, scale, scale, method);
    return {out};
}

} // namespace

const Reference NonLocalMeans = {"non-local means", [](const cv::Mat &damaged, int) {
                                     std::vector<cv::Mat> found;
                                     for (const float h : {12.0f, 25.0f, 45.0f}) {
                                         cv::Mat out;
                                         cv::fastNlMeansDenoisingColored(damaged, out, h, h);
                                         found.push_back(out);
                                     }
                                     return found;
                                 }};

const Reference UnsharpMask = {"unsharp mask", [](const cv::Mat &damaged, int) {
                                   std::vector<cv::Mat> found;
                                   for (const double radius : {0.8, 1.4, 2.5}) {
                                       for (const double amount : {0.3, 0.8, 1.6}) {
                                           cv::Mat soft, out;
                                           cv::GaussianBlur(damaged, soft, {}, radius);
                                           cv::addWeighted(damaged, 1 + amount, soft, -amount, 0, out);
                                           found.push_back(out);
                                       }
                                   }
                                   return found;
                               }};

const Reference Bicubic = {
    "bicubic", [](const cv::Mat &small, int scale) { return enlarged(small, scale, cv::INTER_CUBIC); }};

const Reference Lanczos = {
    "Lanczos", [](const cv::Mat &small, int scale) { return enlarged(small, scale, cv::INTER_LANCZOS4); }};

const Reference LeftAlone = {"left alone", [](const cv::Mat &damaged, int) { return std::vector{damaged}; }};
