#include "Photographs.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Among them a print of a painting, whose paper is as rough as noise, and a photograph that is noisy
/// even when reduced.
const QStringList &unsuitable() {
    static const QStringList names = {u"Fossa_"_s,         u"Infinite-Sea_"_s, u"Painting-Colors_"_s,
                                      u"analogpattern_"_s, u"umang_"_s,        u"valley-midnight"_s,
                                      u"waves-midnight"_s, u"ocean-waves"_s,   u"tea-gardens"_s};
    return names;
}

bool isUnsuitable(const QString &file) {
    for (const QString &name : unsuitable()) {
        if (file.startsWith(name))
            return true;
    }
    return false;
}

} // namespace

QStringList installedPhotographs() {
    const std::pair<QString, QString> folders[] = {{u"/usr/share/backgrounds/mate/nature"_s, u"*.jpg"_s},
                                                   {u"/usr/share/backgrounds/budgie"_s, u"*.jpg"_s},
                                                   {u"/usr/share/backgrounds"_s, u"*_by_*.jpg"_s}};
    QStringList paths;
    for (const auto &[path, pattern] : folders) {
        const QDir folder(path);
        for (const QString &file : folder.entryList({pattern}, QDir::Files, QDir::Name)) {
            if (!isUnsuitable(file))
                paths.append(folder.filePath(file));
        }
    }
    for (const char *name : {"BytheWater", "ColdRipple", "ColorfulCups", "DarkestHour", "EveningGlow",
                             "FallenLeaf", "Grey", "Kite", "OneStandsOut", "Path", "summer_1am"}) {
        const QString path =
            u"/usr/share/wallpapers/%1/contents/images/2560x1600.jpg"_s.arg(QLatin1StringView(name));
        if (QFileInfo::exists(path))
            paths.append(path);
    }
    return paths;
}

std::vector<Photograph> readPhotographs(const QStringList &paths, cv::Size size) {
    constexpr std::array<double, 4> Factors = {0.4, 0.5, 0.35, 0.6};
    std::vector<Photograph> photographs;
    for (const QString &path : paths) {
        const cv::Mat whole = cv::imread(QFile::encodeName(path).toStdString());
        const double factor = Factors[photographs.size() % Factors.size()];
        const cv::Size reduced(int(whole.cols * factor), int(whole.rows * factor));
        if (whole.empty() || reduced.width < size.width * 3 / 4 || reduced.height < size.height * 3 / 4)
            continue;
        const cv::Size cut(std::min(size.width, reduced.width), std::min(size.height, reduced.height));
        const cv::Size source(int(cut.width / factor), int(cut.height / factor));
        const cv::Mat part = whole(cv::Rect((whole.cols - source.width) / 2, (whole.rows - source.height) / 2,
                                            source.width, source.height));
        // Names of files or, where these only give the size, of their packages.
        const QString name = path.section(u'/', -1).startsWith(u"2560x"_s) ? path.section(u'/', -4, -4)
                                                                           : QFileInfo(path).baseName();
        Photograph photograph{name, {}, {}};
        cv::resize(part, photograph.clean, cut, 0, 0, cv::INTER_AREA);
        const cv::Size larger(int(cut.width * Photograph::LargerBy), int(cut.height * Photograph::LargerBy));
        cv::resize(part, photograph.larger, larger, 0, 0,
                   larger.width < source.width ? cv::INTER_AREA : cv::INTER_CUBIC);
        photographs.push_back(photograph);
    }
    return photographs;
}
