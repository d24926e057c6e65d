#include "Drawings.h"
#include "Measurement.h"
#include "Page.h"
#include "bench/Photographs.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <opencv2/imgcodecs.hpp>

#include <cstdio>
#include <set>

using namespace Qt::StringLiterals;

namespace {

const cv::Size PictureSize(512, 384);
constexpr int LeastSide = 64;

std::vector<cv::Mat> cleanPhotographs() {
    std::vector<cv::Mat> clean;
    // The networks learned from the other packages.
    for (const Photograph &photograph :
         readPhotographs(installedPhotographs().filter(u"/mate/nature/"_s), PictureSize))
        if (photograph.clean.size() == PictureSize)
            clean.push_back(photograph.clean);
    return clean;
}

/// Those of a folder as they are, but for sides that every reduction divides.
std::vector<cv::Mat> picturesIn(const QString &folder) {
    constexpr int Divisor = 4;
    std::vector<cv::Mat> clean;
    const QDir directory(folder);
    for (const QString &name : directory.entryList(QDir::Files, QDir::Name)) {
        const cv::Mat whole = cv::imread(QFile::encodeName(directory.filePath(name)).toStdString());
        if (std::min(whole.rows, whole.cols) >= LeastSide)
            clean.push_back(
                whole({0, 0, whole.cols / Divisor * Divisor, whole.rows / Divisor * Divisor}).clone());
        else
            std::fprintf(stderr, "orvane-quality: %s is no picture of at least %d pixels a side: left out\n",
                         qPrintable(name), LeastSide);
    }
    return clean;
}

std::vector<Case> casesOf(const QString &only, bool drawings) {
    std::vector<Case> chosen;
    for (const Case &one : allCases()) {
        if (QString::fromStdString(one.model).contains(only, Qt::CaseInsensitive) &&
            (drawings || one.source != Source::Drawings))
            chosen.push_back(one);
    }
    return chosen;
}

std::set<QString> modelsOf(const std::vector<Case> &cases) {
    std::set<QString> models;
    for (const Case &one : cases)
        models.insert(one.settings.front().model);
    return models;
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // drawings need fonts, no window
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Measures every model and writes a page into the folder."_s);
    parser.addHelpOption();
    parser.addPositionalArgument(u"folder"_s, u"Where the page goes."_s);
    parser.addPositionalArgument(u"model"_s, u"Only models with this in their names."_s, u"[model]"_s);
    const QCommandLineOption pictures(
        u"pictures"_s, u"Clean pictures to measure with, instead of the machine's and of drawings."_s,
        u"FOLDER"_s);
    parser.addOption(pictures);
    parser.process(application);
    const QStringList arguments = parser.positionalArguments();
    if (arguments.isEmpty() || arguments.size() > 2)
        parser.showHelp(2);
    const bool own = parser.isSet(pictures);
    const std::vector<cv::Mat> photographs = own ? picturesIn(parser.value(pictures)) : cleanPhotographs();
    if (photographs.empty()) {
        std::fprintf(stderr, "orvane-quality: no photographs; %s\n",
                     own ? "the folder has none" : "install mate-backgrounds");
        return 2;
    }
    const std::vector<Case> cases = casesOf(arguments.value(1), !own);
    if (cases.empty()) {
        std::fprintf(stderr, "orvane-quality: no model has that in its name\n");
        return 2;
    }
    // First, while the program holds little else.
    const std::vector<NetworkCost> networks = networkCosts(modelsOf(cases));
    for (const NetworkCost &one : networks)
        std::printf("%-26s %7.1f kMAC %6.2f s/MP %6.2f core s/MP %6.0f MB\n", qPrintable(one.file),
                    one.multiplyAdds / 1000, one.seconds, one.coreSeconds, one.peakMegabytes);
    std::fflush(stdout);
    Measurement measurement(photographs, own ? std::vector<cv::Mat>() : drawings(PictureSize));
    std::vector<Outcome> outcomes;
    for (const Case &one : cases) {
        const Outcome &outcome = outcomes.emplace_back(measurement.measure(one));
        std::printf(
            "%-32s %-26s %s%6.2f dB%s, %s %6.2f\n", one.model.c_str(), one.damage.c_str(),
            one.scale > 1 ? "" : qPrintable(QString::asprintf("%6.2f -> ", outcome.damaged)), outcome.ours,
            outcome.automatic ? qPrintable(QString::asprintf(", automatic %6.2f", *outcome.automatic)) : "",
            one.reference.name.c_str(), outcome.reference);
        std::fflush(stdout);
        if (outcome.crops.empty()) {
            std::fprintf(stderr, "orvane-quality: %s did not answer\n", one.model.c_str());
            return 1;
        }
    }
    const PageSource source{int(photographs.size()),
                            own ? QDir(parser.value(pictures)).dirName() : QString()};
    if (!writePage(arguments.at(0), cases, outcomes, networks, source)) {
        std::fprintf(stderr, "orvane-quality: the page could not be written\n");
        return 1;
    }
    return 0;
}
