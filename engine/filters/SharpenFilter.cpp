#include "engine/filters/SharpenFilter.h"

#include "engine/filters/StrengthScale.h"
#include "engine/kernels/BlockShrink.h"
#include "engine/kernels/LumaDeblur.h"

#include <cmath>

namespace {

class SharpenStage final : public Stage {
public:
    SharpenStage(const BlockShrink::Settings &shrink, const LumaDeblur::Settings &deblur)
        : m_shrinks(!shrink.takesNothing())
        , m_shrink(shrink)
        , m_deblur(deblur) {}

    QString name() const override { return QStringLiteral("Sharpen"); }
    TRect inputRegion(const TRect &output) const override {
        return Region::grown(output, m_deblur.halo() + (m_shrinks ? BlockShrink::Halo : 0));
    }
    double cost() const override { return m_shrinks ? 7 : 3; }
    QString run(const FloatTile &in, FloatTile &out, Scratch &scratch,
                const std::stop_token &stop) const override {
        if (!m_shrinks) {
            m_deblur.run(in.planes, out.planes, out.area, scratch, stop);
            return {};
        }
        const FloatTile clean = FloatTile::make(scratch, Region::grown(out.area, m_deblur.halo()), 3);
        m_shrink.run(in.planes, clean.planes, clean.area, scratch, stop);
        if (!stop.stop_requested())
            m_deblur.run(clean.planes, out.planes, out.area, scratch, stop);
        return {};
    }

private:
    bool m_shrinks;
    BlockShrink m_shrink;
    LumaDeblur m_deblur;
};

BlurShape::Kind kindOf(const QString &name) {
    if (name == QStringLiteral("disk"))
        return BlurShape::Kind::Disk;
    return name == QStringLiteral("motion") ? BlurShape::Kind::Motion : BlurShape::Kind::Gaussian;
}

int supportOf(const BlurShape &blur) {
    const double reach = blur.kind == BlurShape::Kind::Motion ? 1.6 : 3;
    return std::clamp(int(std::ceil(reach * blur.extent)) + 2, 4, 26);
}

} // namespace

Made makeSharpenStage(const FilterInput &input) {
    const FilterValues &values = input.values;
    const ModelDefinition &model = values.definition();
    const bool lens = values.flag(QStringLiteral("lens"));
    const QString extent = lens ? QStringLiteral("lensExtentMax") : QStringLiteral("extentMax");
    const StrengthScale::Linear widths{model.constant(extent, 2)};

    LumaDeblur::Settings deblur;
    deblur.blur.kind =
        kindOf(model.text(lens ? QStringLiteral("lensBlur") : QStringLiteral("blur"), QString()));
    deblur.blur.extent = widths.measure(values.number(QStringLiteral("strength")));
    deblur.blur.angle = double(input.statistics.motionAngle);
    deblur.radius = supportOf(deblur.blur);
    deblur.overshoot = model.constant(QStringLiteral("overshoot"), 0.2);

    const double denoise =
        values.number(QStringLiteral("denoise")) * model.constant(QStringLiteral("denoiseMax"), 12) / 255;
    BlockShrink::Settings shrink;
    shrink.luma.sigma = shrink.chroma.sigma = float(denoise);
    deblur.noise = double(input.statistics.lumaNoise) * model.constant(QStringLiteral("noiseWeight"), 1);
    deblur.remaining = shrink.takesNothing() ? deblur.noise : std::max(0.0, deblur.noise - denoise);
    if (deblur.blur.extent <= 0 && shrink.takesNothing())
        return {};
    return {std::make_unique<SharpenStage>(shrink, deblur), {}};
}
