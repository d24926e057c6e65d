#include "engine/filters/EnhanceFilter.h"

#include "contracts/FilterNames.h"
#include "engine/filters/EnhanceSize.h"
#include "engine/filters/NetworkChoice.h"
#include "engine/kernels/HiddenColour.h"
#include "engine/kernels/TileResize.h"

#include <cmath>

namespace {

/// Mostly the network's step on the input, then a resize to the size asked for. A network of step 1
/// comes behind a reduction, where it works on the pixels that are seen, and on fewer.
class EnhanceStage final : public Stage {
public:
    EnhanceStage(double scale, const QSize &input, std::optional<NetworkPass> pass)
        : m_scale(scale)
        , m_input(input)
        , m_output(std::max(1, int(std::lround(input.width() * scale))),
                   std::max(1, int(std::lround(input.height() * scale))))
        , m_pass(std::move(pass))
        , m_step(networkLeads() ? m_pass->scale() : 1)
        , m_horizontal(kernel(), input.width() * m_step, m_output.width())
        , m_vertical(kernel(), input.height() * m_step, m_output.height())
        , m_alphaHorizontal(Resampler::Kernel::CatmullRom, input.width(), m_output.width())
        , m_alphaVertical(Resampler::Kernel::CatmullRom, input.height(), m_output.height()) {}

    QString name() const override { return Categories::Enhance; }
    QSize outputSize(const QSize &) const override { return m_output; }
    TRect outputRegion(const TRect &input) const override;
    double scale() const override { return m_scale; }
    bool writesAlpha() const override { return true; }
    double cost() const override { return 2 + (m_pass ? 11 * m_pass->effort() : 0) / (m_scale * m_scale); }
    int tileSide() const override {
        const int side = m_pass ? m_pass->tileSide() : Stage::tileSide();
        return networkLeads() ? std::clamp(int(side * m_scale), 96, 2048) : side;
    }
    TRect inputRegion(const TRect &output) const override;
    QString run(const FloatTile &in, FloatTile &out, Scratch &scratch,
                const std::stop_token &stop) const override;

private:
    Resampler::Kernel kernel() const {
        return m_scale > m_step ? Resampler::Kernel::CatmullRom : Resampler::Kernel::Lanczos3;
    }
    bool resizes() const { return m_output != m_input * m_step; }
    TRect resizeInput(const TRect &output) const;
    bool networkLeads() const { return m_pass && (m_scale >= 1 || m_pass->scale() > 1); }
    QString stepAndResize(const FloatTile &in, FloatTile &out, Scratch &scratch,
                          const std::stop_token &stop) const;
    QString resizeAndStep(const FloatTile &in, FloatTile &out, Scratch &scratch,
                          const std::stop_token &stop) const;

    double m_scale; ///< output pixels per input pixel
    QSize m_input;
    QSize m_output;
    std::optional<NetworkPass> m_pass;
    int m_step;
    Resampler m_horizontal;
    Resampler m_vertical;
    Resampler m_alphaHorizontal;
    Resampler m_alphaVertical;
};

TRect EnhanceStage::outputRegion(const TRect &input) const {
    const auto span = [](int from, int to, int size, int outSize) {
        const auto edge = [&](int i) { return int((qint64(i) * outSize + size / 2) / size); };
        const int first = std::min(edge(from), outSize - 1);
        return std::pair(first, std::max(edge(to), first + 1));
    };
    const auto [left, right] = span(input.x, Region::right(input), m_input.width(), m_output.width());
    const auto [top, bottom] = span(input.y, Region::bottom(input), m_input.height(), m_output.height());
    return Region::fromEdges(left, top, right, bottom);
}

TRect EnhanceStage::resizeInput(const TRect &output) const {
    if (!resizes())
        return output;
    const auto x = m_horizontal.inputSpan(output.x, Region::right(output) - 1);
    const auto y = m_vertical.inputSpan(output.y, Region::bottom(output) - 1);
    return {x.first, y.first, x.count, y.count};
}

TRect EnhanceStage::inputRegion(const TRect &output) const {
    if (!m_pass)
        return resizeInput(output);
    return networkLeads() ? Region::grown(m_pass->inputArea(resizeInput(output)), HiddenColour::Radius)
                          : resizeInput(m_pass->inputArea(output));
}

QString EnhanceStage::stepAndResize(const FloatTile &in, FloatTile &out, Scratch &scratch,
                                    const std::stop_token &stop) const {
    FloatTile source = in;
    if (in.channels == 4) {
        source = FloatTile::make(scratch, Region::grown(in.area, -HiddenColour::Radius), 3);
        HiddenColour::fill(in, source, scratch);
        resample(m_alphaHorizontal, m_alphaVertical, in.planes[3], out.planes[3], scratch);
    }
    if (!resizes())
        return m_pass->run(source.planes, out.planes, scratch, stop);
    const FloatTile large = FloatTile::make(scratch, resizeInput(out.area), 3);
    const QString error = m_pass->run(source.planes, large.planes, scratch, stop);
    for (int c = 0; c < 3 && error.isEmpty() && !stop.stop_requested(); ++c)
        resample(m_horizontal, m_vertical, large.planes[c], out.planes[c], scratch);
    return error;
}

QString EnhanceStage::resizeAndStep(const FloatTile &in, FloatTile &out, Scratch &scratch,
                                    const std::stop_token &stop) const {
    if (!m_pass) {
        resampleTile(m_horizontal, m_vertical, in, out, scratch);
        return {};
    }
    const FloatTile small = FloatTile::make(scratch, m_pass->inputArea(out.area), in.channels);
    resampleTile(m_horizontal, m_vertical, in, small, scratch);
    for (int y = out.area.y; y < Region::bottom(out.area) && in.channels == 4; ++y)
        std::copy_n(small.planes[3].at(out.area.x, y), out.area.width, out.planes[3].row(y));
    return m_pass->run(small.planes, out.planes, scratch, stop);
}

QString EnhanceStage::run(const FloatTile &in, FloatTile &out, Scratch &scratch,
                          const std::stop_token &stop) const {
    return networkLeads() ? stepAndResize(in, out, scratch, stop) : resizeAndStep(in, out, scratch, stop);
}

} // namespace

PreparedStage makeEnhanceStage(const FilterInput &input) {
    const double scale = enhanceScale(input.values, input.size, input.log);
    NetworkChoice::Choice choice = NetworkChoice::make(input, std::max(1.0, scale));
    if (!choice.error.isEmpty())
        return {nullptr, choice.error};
    const bool same = !choice.pass;
    auto stage = std::make_unique<EnhanceStage>(scale, input.size, std::move(choice.pass));
    if (same && stage->outputSize(input.size) == input.size)
        return {};
    return {std::move(stage), {}};
}
