#include "StaleRun.h"

#include "app/Composition.h"
#include "frontends/TEngineController.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<ImageData> picture() {
    auto image = std::make_shared<ImageData>(6000, 4000, 3, SampleType::UInt8);
    quint32 seed = 3;
    for (int y = 0; y < image->height(); ++y) {
        for (std::uint8_t &sample : image->samples<std::uint8_t>(y)) {
            seed = seed * 1664525U + 1013904223U;
            sample = std::uint8_t(seed >> 25);
        }
    }
    return image;
}

bool wait(const std::function<bool()> &condition) {
    for (const QDeadlineTimer deadline(60000); !condition() && !deadline.hasExpired();)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1);
    return condition();
}

} // namespace

StaleRuns cancelStaleRuns() {
    joinBackends();
    TEngineController engine;
    engine.setModelDirectory(QCoreApplication::applicationDirPath() + u"/../share/orvane-studio/models"_s);
    if (!wait([&] { return !engine.modelParamInfo().isEmpty(); }))
        return {};
    engine.setInputImage({{u"uid"_s, u"stale"_s}, {u"image"_s, QVariant::fromValue(picture())}});
    bool answered = false;
    QObject::connect(&engine, &TEngineController::canceled, &engine, [&] { answered = true; });
    const QVariantMap catalogue = engine.modelParamInfo();
    StaleRuns all{0, 0};
    for (auto category = catalogue.begin(); category != catalogue.end(); ++category) {
        const QVariantMap models = category->toMap();
        double here = 0;
        for (auto model = models.begin(); model != models.end(); ++model) {
            const QVariantMap ranges = model->toMap()[u"gui"_s].toMap()[u"parameters"_s].toMap();
            QVariantMap values;
            for (auto range = ranges.begin(); range != ranges.end(); ++range)
                values[range.key()] = range->toMap()[u"default"_s];
            engine.setParams({{category.key(), QVariantMap{{u"category"_s, category.key()},
                                                           {u"model"_s, model.key()},
                                                           {u"enabled"_s, true},
                                                           {u"params"_s, values}}}});
            for (const int after : {20, 150, 700}) {
                answered = false;
                engine.procRequest(QRectF(0, 0, 6000, 4000), {category.key()});
                QElapsedTimer clock;
                clock.start();
                while (clock.elapsed() < after && engine.processing())
                    QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
                if (!engine.processing())
                    continue; // done before it could become stale
                clock.restart();
                const std::clock_t used = std::clock();
                engine.cancelProc();
                if (!wait([&] { return !engine.processing(); }) || !answered)
                    return {};
                here = std::max(here, double(clock.nsecsElapsed()) / 1e6);
                all.computed = std::max(all.computed, 1e3 * double(std::clock() - used) / CLOCKS_PER_SEC);
            }
        }
        std::printf("  %-24s %6.1f ms\n", qPrintable(category.key()), here);
        all.longest = std::max(all.longest, here);
    }
    return all;
}
