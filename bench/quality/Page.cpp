#include "Page.h"

#include <QDir>
#include <QSaveFile>
#include <QTextStream>

#include <opencv2/imgcodecs.hpp>

#include <set>

using namespace Qt::StringLiterals;

namespace {

QString number(double value, int decimals) {
    return QString::number(value, 'f', decimals);
}

QString pictureName(const std::string &model) {
    return QString::fromStdString(model).toLower().replace(u", "_s, u"-"_s).replace(u' ', u'-') + u".jpg"_s;
}

} // namespace

bool writePage(const QString &folder, const std::vector<Case> &cases, const std::vector<Outcome> &outcomes,
               int photographs, double peakMegabytes) {
    QDir().mkpath(folder);
    QSaveFile file(folder + u"/README.md"_s);
    if (!file.open(QFile::WriteOnly))
        return false;
    QTextStream page(&file);
    page << "# What the models do to photographs\n\n"
         << "Made by `tools/quality`: " << photographs
         << " photographs that no network learned from, damaged in known ways, run through the built engine. "
            "Means over the photographs; PSNR in dB, for enlargements over luminance; SSIM over luminance. A "
            "slider and each reference (OpenCV's) stand where they are best on average. Seconds for a "
            "megapixel "
            "of input, in pictures so small that mostly one core works. Most memory held: "
         << number(peakMegabytes, 0) << " MB.\n\n"
         << "| model | damage | damaged | ours | reference | | SSIM ours | SSIM reference | s/MP |\n"
            "|---|---|---|---|---|---|---|---|---|\n";
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const Case &one = cases[i];
        const Outcome &outcome = outcomes[i];
        page << "| " << one.model.c_str() << " | " << one.damage.c_str() << " | "
             << (one.scale > 1 ? u""_s : number(outcome.damaged, 2)) << " | **" << number(outcome.ours, 2)
             << "** | " << number(outcome.reference, 2) << " | " << one.reference.name.c_str() << " | "
             << number(outcome.ourSsim, 3) << " | " << number(outcome.referenceSsim, 3) << " | "
             << number(outcome.secondsPerMegapixel, 2) << " |\n";
    }
    page << "\nEach picture: damaged, reference, ours, clean.\n";
    std::set<std::string> shown;
    for (std::size_t i = 0; i < cases.size(); ++i) {
        // The second damage of a model is the middle one.
        if (i > 0 && cases[i - 1].model != cases[i].model && i + 1 < cases.size() &&
            cases[i + 1].model == cases[i].model)
            continue;
        if (!shown.insert(cases[i].model).second)
            continue;
        const QString name = pictureName(cases[i].model);
        if (!cv::imwrite(QString(folder + u'/' + name).toStdString(), outcomes[i].crops,
                         {cv::IMWRITE_JPEG_QUALITY, 90}))
            return false;
        page << "\n**" << cases[i].model.c_str() << "**, " << cases[i].damage.c_str() << "\n\n!["
             << cases[i].model.c_str() << "](" << name << ")\n";
    }
    page.flush();
    return file.commit();
}
