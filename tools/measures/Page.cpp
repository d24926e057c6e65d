#include "Page.h"

#include <QDir>
#include <QSaveFile>
#include <QTextStream>

#include <opencv2/imgcodecs.hpp>

#include <set>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

QString number(double value, int decimals) {
    return QString::number(value, 'f', decimals);
}

QString pictureName(const std::string &model) {
    return QString::fromStdString(model).toLower().replace(u", "_s, u"-"_s).replace(u' ', u'-') + u".jpg"_s;
}

void writeHow(QTextStream &page, const PageSource &source) {
    page << "# What the models do to pictures\n\n";
    if (source.folder.isEmpty())
        page << "Made by `tools/quality`: " << source.photographs
             << R"( photographs that no network learned from, and drawings
made by code of their own, damaged in known ways and run through the built engine. Means over the pictures; PSNR
in dB, of enlargements over luminance without a border as wide as the scale; SSIM over luminance.

- The photographs are desktop pictures, reduced so that nothing of their own noise is left, and smooth: absolute
  figures are higher than on the usual public test sets. What counts is the distance to the reference. For pictures
  of your own, as they are: `tools/quality --pictures FOLDER PAGE [NAME]`.
- Drawings hold text in faces that the Graphics network has seen, too, in other words and places.
)";
    else
        page << "Made by `tools/quality --pictures`: the " << source.photographs << " pictures of \""
             << source.folder << R"(" as they are, damaged in
known ways and run through the built engine. Means over the pictures; PSNR in dB, of enlargements over luminance
without a border as wide as the scale; SSIM over luminance.

)";
    page
        << R"(- **ours** has the slider where it is best on average. Denoise: at the noise that was added, for noise with
  chroma at 20. RAW: the best of 0.7, 1, 1.3 and 1.8 times the noise. Sharpen: the best of seven places
  with its own denoising at 0.01 or 0.1. Enlargement: all sliders at their least; compressed pictures: the best of
  five places. The **reference** is OpenCV's and stands at its best of a few settings, too.
- **automatic** is the same model with the slider where Autopilot's measurement puts it, for each picture by
  itself.
- "sensor": the photograph's light is divided by a daylight's white balance and falls through an RGGB mosaic;
  photons and readout make noise; OpenCV's edge-aware demosaicing, the white balance and sRGB's curve follow, in
  16 bit. The number is the noise's root mean square in the developed picture, in 8-bit levels. What demosaicing
  itself costs counts against all. "smeared": noise smoothed by 0.7 pixels after demosaicing, as in linear files.

)";
}

void writeCases(QTextStream &page, const std::vector<Case> &cases, const std::vector<Outcome> &outcomes) {
    page << "| model | damage | damaged | ours | automatic | reference | | SSIM ours | SSIM reference |\n"
            "|---|---|---|---|---|---|---|---|---|\n";
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const Case &one = cases[i];
        const Outcome &outcome = outcomes[i];
        page << "| " << one.model.c_str() << " | " << one.damage.c_str() << " | "
             << (one.scale > 1 ? u""_s : number(outcome.damaged, 2)) << " | **" << number(outcome.ours, 2)
             << "** | " << (outcome.automatic ? number(*outcome.automatic, 2) : u""_s) << " | "
             << number(outcome.reference, 2) << " | " << one.reference.name.c_str() << " | "
             << number(outcome.ourSsim, 3) << " | " << number(outcome.referenceSsim, 3) << " |\n";
    }
}

void writeNetworks(QTextStream &page, const std::vector<NetworkCost> &networks) {
    page
        << "\n## What it costs\n\n"
        << "Each weight file over one large picture in 8 bit, measuring the picture's noise and blur "
           "included, on "
        << std::thread::hardware_concurrency()
        << " cores that may have had other work; core seconds are those that the run used. A pixel is one of "
           "the input; memory is the most that the whole program held, pictures included.\n\n"
        << "| network | used by | scale | multiply-adds a pixel | halo, pixels | file, MB | s/MP | core s/MP "
           "| "
           "memory, MB |\n|---|---|---|---|---|---|---|---|---|\n";
    for (const NetworkCost &one : networks)
        page << "| " << one.file << " | " << one.models << " | " << one.scale << " | "
             << number(one.multiplyAdds / 1000, 1) << " thousand | " << one.halo << " | "
             << number(one.megabytes, 2) << " | " << number(one.seconds, 2) << " | "
             << number(one.coreSeconds, 2) << " | " << number(one.peakMegabytes, 0) << " |\n";
}

bool writePictures(QTextStream &page, const QString &folder, const std::vector<Case> &cases,
                   const std::vector<Outcome> &outcomes) {
    page << "\n## Pictures\n\nEach: damaged, reference, ours, clean.\n";
    std::set<std::string> shown;
    for (std::size_t i = 0; i < cases.size(); ++i) {
        // The second damage of a model is the middle one.
        if ((i == 0 || cases[i - 1].model != cases[i].model) && i + 1 < cases.size() &&
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
    return true;
}

} // namespace

bool writePage(const QString &folder, const std::vector<Case> &cases, const std::vector<Outcome> &outcomes,
               const std::vector<NetworkCost> &networks, const PageSource &source) {
    QDir().mkpath(folder);
    QSaveFile file(folder + u"/README.md"_s);
    if (!file.open(QFile::WriteOnly))
        return false;
    QTextStream page(&file);
    writeHow(page, source);
    writeCases(page, cases, outcomes);
    writeNetworks(page, networks);
    if (!writePictures(page, folder, cases, outcomes))
        return false;
    page.flush();
    return file.commit();
}
