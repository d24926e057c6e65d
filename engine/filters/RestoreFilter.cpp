#include "engine/filters/RestoreFilter.h"

#include "engine/catalogue/Roles.h"
#include "engine/filters/NetworkChoice.h"
#include "engine/kernels/DetailReturn.h"
#include "engine/kernels/RangeLimit.h"

namespace {

class RestoreStage final : public Stage {
public:
    RestoreStage(const QString &name, NetworkPass pass, const DetailReturn &detail, const RangeLimit &limit)
        : m_name(name)
        , m_pass(std::move(pass))
        , m_detail(detail)
        , m_limit(limit) {}

    QString name() const override { return m_name; }
    TRect inputRegion(const TRect &output) const override {
        return m_pass.inputArea(Region::grown(output, std::max(m_detail.halo(), m_limit.halo())));
    }
    int tileSide() const override { return m_pass.tileSide(); }
    double cost() const override { return 4 * m_pass.effort(); }
    QString run(const FloatTile &in, FloatTile &out, Scratch &scratch,
                const std::stop_token &stop) const override {
        FloatTile result = out;
        if (m_detail.halo() > 0)
            result = FloatTile::make(scratch, Region::grown(out.area, m_detail.halo()), 3);
        const QString error = m_pass.run(in.planes, result.planes, scratch, stop);
        if (!error.isEmpty() || stop.stop_requested())
            return error;
        if (m_detail.halo() > 0)
            m_detail.run(in.planes, result.planes, out.planes, out.area, scratch);
        if (m_limit.halo() > 0)
            m_limit.run(in.planes, out.planes, out.area, scratch);
        return {};
    }

private:
    QString m_name;
    NetworkPass m_pass;
    DetailReturn m_detail;
    RangeLimit m_limit;
};

} // namespace

PreparedStage makeRestoreStage(const FilterInput &input) {
    NetworkChoice::Choice choice = NetworkChoice::make(input, 1);
    if (!choice.pass)
        return {nullptr, choice.error};
    const ModelDefinition &model = input.values.definition();
    const DetailReturn detail{float(input.values.number(Roles::Detail)), input.statistics.lumaNoise};
    const RangeLimit limit{float(model.constant(QStringLiteral("overshoot"), -1))};
    return {std::make_unique<RestoreStage>(model.category, std::move(*choice.pass), detail, limit), {}};
}
