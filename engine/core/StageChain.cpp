#include "engine/core/StageChain.h"

#include "engine/core/PixelTransfer.h"
#include "engine/core/TileScheduler.h"

#include <QCoreApplication>

namespace {

QString outOfMemory(const QSize &size) {
    return QCoreApplication::translate("Engine", "Not enough memory for a picture of %1 x %2 pixels")
        .arg(size.width())
        .arg(size.height());
}

} // namespace

StageChain::StageChain(const ImageRef &image)
    : m_image(image)
    , m_sizes{QSize(image->width(), image->height())} {
}

void StageChain::append(std::unique_ptr<Stage> stage, const QByteArray &settings) {
    const QByteArray before = m_links.empty() ? QByteArray() : m_links.back().stack;
    const QSize size = stage->outputSize(m_sizes.back());
    m_sizes.push_back(size);
    const QByteArray out = QByteArray::number(size.width()) + 'x' + QByteArray::number(size.height());
    m_links.push_back({std::move(stage), before + settings + ' ' + out + '\n'});
}

double StageChain::scale() const {
    double scale = 1;
    for (const Link &link : m_links)
        scale *= link.stage->scale();
    return scale;
}

double StageChain::work(std::size_t i, const TRect &area) const {
    return m_links[i].stage->cost() * double(area.width) * double(area.height);
}

/// What each stage has to produce: forwards to where the region comes out, then back by halos.
std::vector<TRect> StageChain::neededRegions(const TRect &region) const {
    TRect area = region;
    for (const Link &link : m_links)
        area = link.stage->outputRegion(area);
    std::vector<TRect> needed(m_links.size());
    for (std::size_t i = m_links.size(); i-- > 0;) {
        needed[i] = area;
        area = Region::intersected(m_links[i].stage->inputRegion(area), Region::whole(m_sizes[i]));
    }
    return needed;
}

StageChain::Outcome StageChain::runStage(std::size_t i, const Part &input, const TRect &area, SampleType type,
                                         const Settings &settings, const RunControl &control,
                                         const Progress &progress) const {
    const Stage &stage = *m_links[i].stage;
    Outcome outcome;
    auto target = std::make_shared<ImageData>(area.width, area.height, m_image->channels(), type);
    if (target->isNull()) {
        outcome.error = outOfMemory({area.width, area.height});
        return outcome;
    }
    const auto tiles =
        tilesOf(area, settings.tileSide > 0 ? settings.tileSide : stage.tileSide(), settings.threads);
    const auto work = [&](const TRect &tile, Scratch &scratch) -> QString {
        const bool alpha = m_image->hasAlpha() && stage.writesAlpha();
        const int channels = alpha ? 4 : 3;
        FloatTile out = FloatTile::make(scratch, tile, channels);
        FloatTile in = FloatTile::make(scratch, stage.inputRegion(tile), channels);
        PixelTransfer::load(*input.image, input.covered, m_sizes[i], in);
        const QString error = stage.run(in, out, scratch, control.stop);
        if (control.stopped() || !error.isEmpty())
            return error;
        PixelTransfer::store(out, *target, area);
        if (!alpha)
            PixelTransfer::copyAlpha(*input.image, input.covered, *target, area, tile);
        return {};
    };
    const double share = this->work(i, area) / progress.total;
    const TileRun run = runTiles(tiles, settings.threads, control.stop, work, [&](std::size_t finished) {
        control.report(progress.done / progress.total + share * double(finished) / double(tiles.size()),
                       stage.name());
    });
    switch (run.end) {
    case TileRun::End::Done:
        outcome.image = std::move(target);
        break;
    case TileRun::End::Stopped:
        outcome.cancelled = true;
        break;
    case TileRun::End::OutOfMemory:
        outcome.error = outOfMemory(m_sizes[i + 1]);
        break;
    case TileRun::End::Failed:
        outcome.error = run.error;
        break;
    }
    return outcome;
}

StageChain::Outcome StageChain::run(const TRect &region, const Settings &settings,
                                    const RunControl &control) const {
    const std::vector<TRect> needed = neededRegions(region);
    Part part{m_image, Region::whole(m_sizes.front())};
    std::size_t first = 0;
    for (std::size_t i = m_links.size(); settings.cache && i-- > 0 && first == 0;) {
        const StageCache::Hit hit = settings.cache->find(settings.uid, m_links[i].stack, needed[i]);
        if (hit.image) {
            part = {hit.image, hit.covered};
            first = i + 1;
        }
    }

    Progress progress;
    for (std::size_t i = first; i < m_links.size(); ++i)
        progress.total += work(i, needed[i]);
    const bool keep = settings.cache && settings.keep;
    Outcome outcome;
    for (std::size_t i = first; i < m_links.size(); ++i) {
        const bool final = i + 1 == m_links.size() && !keep;
        outcome = runStage(i, part, needed[i], final ? m_image->type() : SampleType::UInt16, settings,
                           control, progress);
        if (!outcome.image)
            return outcome;
        progress.done += work(i, needed[i]);
        if (final) {
            outcome.image->setIccProfile(m_image->iccProfile());
            return outcome;
        }
        part = {std::move(outcome.image), needed[i]};
        if (keep)
            settings.cache->insert(settings.uid, m_links[i].stack, part.covered, part.image);
    }
    const TRect area = m_links.empty() ? region : needed.back();
    outcome.image = PixelTransfer::copied(*part.image, part.covered, area, m_image->type());
    if (outcome.image)
        outcome.image->setIccProfile(m_image->iccProfile());
    else
        outcome.error = outOfMemory({area.width, area.height});
    return outcome;
}
