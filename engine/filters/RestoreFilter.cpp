#include "engine/filters/RestoreFilter.h"

#include "engine/filters/NetworkChoice.h"
#include "engine/kernels/DetailReturn.h"

namespace {

class RestoreStage final : public Stage {
public:
    RestoreStage(const QString &name, NetworkPass pass, const DetailReturn &detail)
        : m_name(name)
        , m_pass(std::move(pass))
        , m_detail(detail) {}

    QString name() const override { return m_name; }
    TRect inputRegion(const TRect &output) const override {
        return m_pass.inputArea(Region::grown(output, m_detail.halo()));
    }
    int tileSide() const override { return m_pass.tileSide(); }
    double cost() const override { return 4; }
    QString run(const FloatTile &in, FloatTile &out, Scratch &scratch,
                const std::stop_token &stop) const override {
        if (m_detail.amount <= 0)
            return m_pass.run(in.planes, out.planes, scratch, stop);
        const FloatTile clean = FloatTile::make(scratch, Region::grown(out.area, m_detail.halo()), 3);
        const QString error = m_pass.run(in.planes, clean.planes, scratch, stop);
        if (error.isEmpty() && !stop.stop_requested())
            m_detail.run(in.planes, clean.planes, out.planes, out.area, scratch);
        return error;
    }

private:
    QString m_name;
    NetworkPass m_pass;
    DetailReturn m_detail;
};

} // namespace

Made makeRestoreStage(const FilterInput &input) {
    NetworkChoice::Choice choice = NetworkChoice::make(input, 1);
    if (!choice.pass)
        return {nullptr, choice.error};
    const DetailReturn detail{float(input.values.number(QStringLiteral("detail"))),
                              input.statistics.lumaNoise};
    return {
        std::make_unique<RestoreStage>(input.values.definition().category, std::move(*choice.pass), detail),
        {}};
}
