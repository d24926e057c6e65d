#include "engine/filters/HotPixelStage.h"

#include "engine/kernels/HotPixels.h"

namespace {

class HotPixelStage final : public Stage {
public:
    QString name() const override { return QStringLiteral("Hot pixels"); }
    TRect inputRegion(const TRect &output) const override { return Region::grown(output, HotPixels::Halo); }
    QString run(const FloatTile &in, FloatTile &out, Scratch &scratch,
                const std::stop_token &) const override {
        HotPixels::correct(in.planes, out.planes, out.area, scratch);
        return {};
    }
};

} // namespace

std::unique_ptr<Stage> makeHotPixelStage() {
    return std::make_unique<HotPixelStage>();
}
