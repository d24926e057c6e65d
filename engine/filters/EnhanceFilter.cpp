#include "engine/filters/EnhanceFilter.h"

#include "engine/filters/EnhanceSize.h"
#include "engine/filters/ResizeStage.h"
#include "engine/kernels/BlockShrink.h"
#include "engine/kernels/EdgeSharpen.h"
#include "engine/kernels/LocalRange.h"
#include "engine/kernels/LumaDeblur.h"
#include "engine/kernels/TileResize.h"

#include <cmath>

namespace {

struct EnhanceSettings {
    double scale = 1;
    QSize input;
    Resampler::Kernel kernel = Resampler::Kernel::Lanczos3;
    float overshoot = 0; ///< ringing allowed beyond the neighbouring input pixels, share of their range
    BlockShrink::Settings shrink;
    LumaDeblur::Settings deblur;
    EdgeSharpen edges;
};

/// Clean, deblur, resize, steepen. Reductions are deblurred after the resize, where the blur of the
/// slider is one of the pixels seen; enlargements before it, where it costs less.
class EnhanceStage final : public ResizeStage {
public:
    explicit EnhanceStage(const EnhanceSettings &s)
        : ResizeStage(s.scale, s.input)
        , m_shrinks(!s.shrink.takesNothing())
        , m_overshoot(s.overshoot)
        , m_horizontal(s.kernel, s.input.width(), m_output.width())
        , m_vertical(s.kernel, s.input.height(), m_output.height())
        , m_shrink(s.shrink)
        , m_deblur(s.deblur)
        , m_edges(s.edges) {}

    double cost() const override { return 2 + 5 / (m_scale * m_scale); }
    /// Keeps the input of a tile about the same, whatever the scale.
    int tileSide() const override { return std::clamp(int(Stage::tileSide() * m_scale), 96, 768); }
    TRect inputRegion(const TRect &output) const override {
        const int clean = (m_shrinks ? BlockShrink::Halo : 0) + (enlarges() ? m_deblur.halo() : 0);
        return Region::grown(resizeInput(Region::grown(output, resizedHalo())), clean);
    }
    QString run(const FloatTile &in, FloatTile &out, Scratch &scratch,
                const std::stop_token &stop) const override;

private:
    bool enlarges() const { return m_scale >= 1; }
    int resizedHalo() const { return enlarges() ? m_edges.halo() : m_deblur.halo(); }
    /// What the resize reads, with one pixel around it for the ringing limit.
    TRect resizeInput(const TRect &output) const {
        const auto x = m_horizontal.inputSpan(output.x, Region::right(output) - 1);
        const auto y = m_vertical.inputSpan(output.y, Region::bottom(output) - 1);
        return Region::grown({x.first, y.first, x.count, y.count}, 1);
    }
    void resize(const FloatTile &in, const FloatTile &out, Scratch &scratch) const;
    void limitRinging(const PlaneView &in, const PlaneView &out, Scratch &scratch) const;
    void finish(const FloatTile &resized, FloatTile &out, Scratch &scratch,
                const std::stop_token &stop) const;

    bool m_shrinks;
    float m_overshoot;
    Resampler m_horizontal;
    Resampler m_vertical;
    BlockShrink m_shrink;
    LumaDeblur m_deblur;
    EdgeSharpen m_edges;
};

void EnhanceStage::limitRinging(const PlaneView &in, const PlaneView &out, Scratch &scratch) const {
    const Scratch::Scope scope(scratch);
    const PlaneView low = scratch.plane(Region::grown(in.area, -1)), high = scratch.plane(low.area);
    localRange(in, 1, low, high, scratch);
    for (int y = out.area.y; y < Region::bottom(out.area); ++y) {
        const int row = int(std::floor(m_vertical.centre(y) + 0.5));
        float *target = out.row(y);
        for (int x = 0; x < out.area.width; ++x) {
            const int column = int(std::floor(m_horizontal.centre(out.area.x + x) + 0.5));
            const float lo = *low.at(column, row), hi = *high.at(column, row);
            const float beyond = m_overshoot * (hi - lo);
            target[x] = std::max(lo - beyond, std::min(hi + beyond, target[x]));
        }
    }
}

void EnhanceStage::resize(const FloatTile &in, const FloatTile &out, Scratch &scratch) const {
    resampleTile(m_horizontal, m_vertical, in, out, scratch);
    for (int c = in.channels == 4 ? 3 : 0; c < in.channels && m_scale > 1; ++c)
        limitRinging(in.planes[c], out.planes[c], scratch);
}

void EnhanceStage::finish(const FloatTile &resized, FloatTile &out, Scratch &scratch,
                          const std::stop_token &stop) const {
    for (int c = 0; c < out.channels; ++c)
        for (int y = out.area.y; y < Region::bottom(out.area); ++y)
            std::copy_n(resized.planes[c].at(out.area.x, y), out.area.width, out.planes[c].row(y));
    if (!enlarges()) {
        m_deblur.run(resized.planes, out.planes, out.area, scratch, stop);
    } else if (m_edges.amount > 0) {
        const PlaneView luma = scratch.plane(resized.area);
        fillLuma(resized.planes, luma);
        m_edges.run(luma, out.planes, out.area, scratch);
    }
}

QString EnhanceStage::run(const FloatTile &in, FloatTile &out, Scratch &scratch,
                          const std::stop_token &stop) const {
    const TRect wanted = Region::grown(out.area, resizedHalo());
    const TRect deblurred = resizeInput(wanted);
    const TRect cleaned = Region::grown(deblurred, enlarges() ? m_deblur.halo() : 0);
    FloatTile source = in;
    if (m_shrinks) {
        FloatTile clean = FloatTile::make(scratch, cleaned, 3);
        m_shrink.run(source.planes, clean.planes, cleaned, scratch, stop);
        std::copy_n(clean.planes, 3, source.planes);
    }
    if (stop.stop_requested())
        return {};
    FloatTile sharp = FloatTile::make(scratch, deblurred, in.channels);
    if (enlarges()) {
        m_deblur.run(source.planes, sharp.planes, deblurred, scratch, stop);
    } else {
        for (int c = 0; c < 3; ++c)
            for (int y = deblurred.y; y < Region::bottom(deblurred); ++y)
                std::copy_n(source.planes[c].at(deblurred.x, y), deblurred.width, sharp.planes[c].row(y));
    }
    if (in.channels == 4)
        for (int y = deblurred.y; y < Region::bottom(deblurred); ++y)
            std::copy_n(in.planes[3].at(deblurred.x, y), deblurred.width, sharp.planes[3].row(y));
    if (stop.stop_requested())
        return {};
    const FloatTile resized = FloatTile::make(scratch, wanted, in.channels);
    resize(sharp, resized, scratch);
    if (!stop.stop_requested())
        finish(resized, out, scratch, stop);
    return {};
}

Resampler::Kernel kernelOf(const QString &name) {
    if (name == QStringLiteral("catmullRom"))
        return Resampler::Kernel::CatmullRom;
    return name == QStringLiteral("mitchell") ? Resampler::Kernel::Mitchell : Resampler::Kernel::Lanczos3;
}

} // namespace

Made makeEnhanceStage(const FilterInput &input) {
    const FilterValues &values = input.values;
    const ModelDefinition &model = values.definition();
    EnhanceSettings s;
    s.scale = enhanceScale(values, input.size, input.log);
    s.input = input.size;
    // What a model does by itself belongs to enlarging: at scale 1 the picture stays as it is.
    const double enlarging = std::clamp(s.scale - 1, 0.0, 1.0);
    const auto level = [&](const QString &role, const QString &most, const QString &always) {
        return float(
            (values.number(role) * model.constant(most, 20) + enlarging * model.constant(always, 0)) / 255);
    };
    s.kernel = kernelOf(model.text(QStringLiteral("kernel"), QStringLiteral("lanczos3")));
    s.overshoot = float(model.constant(QStringLiteral("overshoot"), 0.2));
    s.shrink.luma.sigma =
        level(QStringLiteral("denoise"), QStringLiteral("denoiseMax"), QStringLiteral("denoise"));
    s.shrink.luma.blocks =
        level(QStringLiteral("compression"), QStringLiteral("compressionMax"), QStringLiteral("compression"));
    s.shrink.chroma = s.shrink.luma;
    s.shrink.chroma.blocks *= 2; // colour is stored more coarsely
    s.deblur.blur.extent =
        values.number(QStringLiteral("deblur")) * model.constant(QStringLiteral("deblurMax"), 1) +
        enlarging * model.constant(QStringLiteral("deblur"), 0);
    s.deblur.noise = double(input.statistics.lumaNoise) * std::min(1.0, s.scale);
    s.deblur.remaining = s.shrink.takesNothing()
                             ? s.deblur.noise
                             : std::max(0.0, s.deblur.noise - double(s.shrink.luma.sigma));
    s.deblur.overshoot = model.constant(QStringLiteral("deblurOvershoot"), 0.2);
    s.deblur.radius = std::clamp(int(std::ceil(3 * s.deblur.blur.extent)) + 2, 4, 12);
    s.edges.amount = float(enlarging * model.constant(QStringLiteral("edges"), 0));
    s.edges.step = std::max(1, int(std::lround(s.scale / 2)));
    auto stage = std::make_unique<EnhanceStage>(s);
    if (stage->outputSize(s.input) == s.input && s.shrink.takesNothing() && s.deblur.blur.extent <= 0)
        return {};
    return {std::move(stage), {}};
}
