#include "PreviewStudio.h"

#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int PatienceMs = 60000;

std::shared_ptr<ImageData> imageOf(const QVariantMap &map) {
    return map.value(u"image"_s).value<std::shared_ptr<ImageData>>();
}

void load(TImageReader &reader, const QString &file) {
    reader.setFilepath(file);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !reader.loading(); }, PatienceMs));
    EXPECT_EQ(reader.error(), QString());
}

} // namespace

PreviewStudio::PreviewStudio(const QString &picture) {
    QObject::connect(&m_engine, &TEngineController::modelParamInfoChanged, &m_controls,
                     [this] { m_controls.setModelParamInfo(m_engine.modelParamInfo()); });
    m_engine.setModelDirectory(QStringLiteral(ORVANE_MODELS));
    m_controls.loadImages({picture});
    load(m_reader, picture);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !catalogue().isEmpty(); }, PatienceMs));
    m_engine.setInputImage(m_reader.imagedata());
}

QVariantMap PreviewStudio::read(const QString &file) {
    TImageReader reader;
    load(reader, file);
    return reader.imagedata();
}

QSize PreviewStudio::size() const {
    const auto image = imageOf(m_reader.imagedata());
    return image ? QSize(image->width(), image->height()) : QSize();
}

void PreviewStudio::add(const QString &name, const QString &category, const QString &model) {
    m_controls.initializeFilter(name, category);
    m_controls.setModel(name, model);
    const QVariantMap ranges =
        catalogue()[category].toMap()[model].toMap()[u"gui"_s].toMap()[u"parameters"_s].toMap();
    for (auto range = ranges.begin(); range != ranges.end(); ++range) {
        const QVariantMap limits = range->toMap();
        if (limits.contains(u"max"_s))
            m_controls.setParam(name, range.key(),
                                (limits[u"min"_s].toDouble() + limits[u"max"_s].toDouble()) / 2);
    }
    if (category == u"Enhance"_s)
        m_controls.setParam(name, u"scale"_s, 1.7);
    m_controls.setParam(name, u"enabled"_s, true);
    m_controls.setFilterOrder(m_controls.filterOrder() << name);
}

void PreviewStudio::clear() {
    const QStringList order = m_controls.filterOrder();
    for (const QString &name : order)
        m_controls.removeFilterControl(name);
    m_controls.setFilterOrder({});
}

QVariantMap PreviewStudio::preview(const QRectF &region) {
    m_engine.setExporting(false);
    return run(region);
}

QVariantMap PreviewStudio::exported(const QRectF &region) {
    m_engine.setExporting(true);
    return run(region);
}

QVariantMap PreviewStudio::run(const QRectF &region) {
    const int before = m_engine.procResult().value(u"requestUid"_s).toInt();
    m_engine.setParams(m_controls.currentControls());
    m_engine.procRequest(region, m_controls.filterOrder());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_engine.processing(); }, PatienceMs));
    EXPECT_EQ(m_engine.error(), QString());
    EXPECT_GT(m_engine.procResult().value(u"requestUid"_s).toInt(), before);
    return m_engine.procResult();
}

Viewport::Viewport()
    : m_rules(m_script.importModule(QStringLiteral(ORVANE_VIEWPORT_RULES))) {
    EXPECT_FALSE(m_rules.isError()) << m_rules.toString().toStdString();
}

QRectF Viewport::region(const Look &look, const QSize &picture, const QSizeF &view) {
    const auto part = [](double seen, double content, double place) {
        const double ratio = std::min(1.0, seen / content);
        return std::pair(place * (1 - ratio), ratio);
    };
    const auto [x, width] =
        part(view.width(), look.zoom * picture.width() * look.crop.width(), look.place.x());
    const auto [y, height] =
        part(view.height(), look.zoom * picture.height() * look.crop.height(), look.place.y());
    const QJSValue seen = m_rules.property(u"visibleArea"_s).call({x, y, width, height});
    const QJSValue rect = m_rules.property(u"boundingRect"_s)
                              .call({seen, m_script.toScriptValue(QSizeF(picture)),
                                     m_script.toScriptValue(look.crop), look.rotation});
    EXPECT_FALSE(rect.isError()) << rect.toString().toStdString();
    const auto number = [&rect](const QString &name) { return rect.property(name).toNumber(); };
    return {number(u"x"_s), number(u"y"_s), number(u"width"_s), number(u"height"_s)};
}

std::string differenceOf(const QVariantMap &part, const QVariantMap &whole) {
    const auto small = imageOf(part), large = imageOf(whole);
    if (!small || !large)
        return "no picture";
    const double scale = whole.value(u"scale"_s, 1.0).toDouble();
    const auto start = [scale](const QVariantMap &map) {
        const QRect region = map.value(u"requestRoi"_s).toRect();
        return QPoint(int(std::lround(region.x() * scale)), int(std::lround(region.y() * scale)));
    };
    const QPoint at = start(part) - start(whole);
    if (at.x() < 0 || at.y() < 0 || at.x() + small->width() > large->width() ||
        at.y() + small->height() > large->height() || small->channels() != large->channels() ||
        small->type() != large->type())
        return "shapes differ";
    const std::size_t pixel = large->rowBytes() / std::size_t(large->width());
    for (int y = 0; y < small->height(); ++y) {
        const std::byte *other = large->row(at.y() + y) + pixel * std::size_t(at.x());
        const auto pair = std::mismatch(small->row(y), small->row(y) + small->rowBytes(), other);
        if (pair.first != small->row(y) + small->rowBytes())
            return "pixel " + std::to_string(at.x() + int(std::size_t(pair.second - other) / pixel)) +
                   " of row " + std::to_string(at.y() + y);
    }
    return {};
}
