#include "../Photographs.h"
#include "Drawings.h"
#include "Measurement.h"
#include "Page.h"

#include <QGuiApplication>

#include <cstdio>
#include <set>

using namespace Qt::StringLiterals;

namespace {

const cv::Size PictureSize(512, 384);

std::vector<cv::Mat> cleanPhotographs() {
    std::vector<cv::Mat> clean;
    // The networks learned from the other packages.
    for (const Photograph &photograph :
         readPhotographs(installedPhotographs().filter(u"/mate/nature/"_s), PictureSize))
        if (photograph.clean.size() == PictureSize)
            clean.push_back(photograph.clean);
    return clean;
}

std::vector<Case> casesOf(const QString &only) {
    std::vector<Case> chosen;
    for (const Case &one : allCases()) {
        if (QString::fromStdString(one.model).contains(only, Qt::CaseInsensitive))
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
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 2 || arguments.size() > 3) {
        std::fprintf(stderr, "orvane-quality FOLDER [MODEL]: measures every model and writes a page into the "
                             "folder, or those with MODEL in their names\n");
        return 2;
    }
    const std::vector<cv::Mat> photographs = cleanPhotographs();
    if (photographs.empty()) {
        std::fprintf(stderr, "orvane-quality: no photographs; install mate-backgrounds\n");
        return 2;
    }
    const std::vector<Case> cases = casesOf(arguments.value(2));
    // First, while the program holds little else.
    const std::vector<NetworkCost> networks = networkCosts(modelsOf(cases));
    for (const NetworkCost &one : networks)
        std::printf("%-26s %7.1f kMAC %6.2f s/MP %6.2f core s/MP %6.0f MB\n", qPrintable(one.file),
                    one.multiplyAdds / 1000, one.seconds, one.coreSeconds, one.peakMegabytes);
    std::fflush(stdout);
    Measurement measurement(photographs, drawings(PictureSize));
    std::vector<Outcome> outcomes;
    for (const Case &one : cases) {
        const Outcome &outcome = outcomes.emplace_back(measurement.measure(one));
        std::printf("%-32s %-26s %6.2f -> %6.2f dB, automatic %6.2f, %s %6.2f\n", one.model.c_str(),
                    one.damage.c_str(), outcome.damaged, outcome.ours, outcome.automatic.value_or(0),
                    one.reference.name.c_str(), outcome.reference);
        std::fflush(stdout);
        if (outcome.crops.empty()) {
            std::fprintf(stderr, "orvane-quality: %s did not answer\n", one.model.c_str());
            return 1;
        }
    }
    if (!writePage(arguments.at(1), cases, outcomes, networks, int(photographs.size()))) {
        std::fprintf(stderr, "orvane-quality: the page could not be written\n");
        return 1;
    }
    return 0;
}
