#include "engine/filters/DenoiseFilter.h"

#include "engine/filters/StrengthScale.h"
#include "engine/kernels/BlockShrink.h"

#include <cmath>

namespace {

class DenoiseStage final : public Stage {
public:
    explicit DenoiseStage(const BlockShrink::Settings &settings)
        : m_shrink(settings) {}

    QString name() const override { return QStringLiteral("Denoise"); }
    TRect inputRegion(const TRect &output) const override { return Region::grown(output, BlockShrink::Halo); }
    double cost() const override { return 4; }
    QString run(const FloatTile &in, FloatTile &out, Scratch &scratch,
                const std::stop_token &stop) const override {
        m_shrink.run(in.planes, out.planes, out.area, scratch, stop);
        return {};
    }

private:
    BlockShrink m_shrink;
};

} // namespace

Made makeDenoiseStage(const FilterInput &input) {
    const FilterValues &values = input.values;
    const ModelDefinition &model = values.definition();
    const StrengthScale::Linear scale{model.constant(QStringLiteral("sigmaMax"), 50) / 255};
    const double sigma = scale.measure(values.number(QStringLiteral("strength")));
    const double grain =
        values.number(QStringLiteral("grain")) * model.constant(QStringLiteral("grainMax"), 2);

    BlockShrink::Settings settings;
    settings.luma = {float(sigma), float(model.constant(QStringLiteral("lumaGrain"), 0) + grain), 0};
    settings.chroma = {float(sigma * model.constant(QStringLiteral("chroma"), 1)),
                       float(model.constant(QStringLiteral("chromaGrain"), 0) + grain), 0};
    settings.deblur =
        float(values.number(QStringLiteral("deblur")) * model.constant(QStringLiteral("deblurMax"), 0.8));
    settings.detail = float(values.number(QStringLiteral("detail")));
    const auto &measured = input.statistics.noise;
    settings.floor =
        std::sqrt((measured[0] * measured[0] + measured[1] * measured[1] + measured[2] * measured[2]) / 3);
    if (settings.takesNothing() && settings.deblur <= 0)
        return {};
    return {std::make_unique<DenoiseStage>(settings), {}};
}
