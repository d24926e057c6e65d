#include "PbBoxMesh.h"

#include <QSGGeometry>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

struct Row {
    const char *name;
    PbBoxShape shape;
    double covered; // in square pixels
};

double roundArea(double width, double height, double radius) {
    return width * height - (4 - std::numbers::pi) * radius * radius;
}

struct Covered {
    void add(const PbBoxMesh &mesh, const PbBoxShape &shape) {
        QSGGeometry geometry(QSGGeometry::defaultAttributes_ColoredPoint2D(), 0);
        mesh.copyTo(geometry);
        const auto *points = geometry.vertexDataAsColoredPoint2D();
        const auto *indices = geometry.indexDataAsUShort();
        for (int i = 0; i < geometry.indexCount(); i += 3) {
            const auto &a = points[indices[i]];
            const auto &b = points[indices[i + 1]];
            const auto &c = points[indices[i + 2]];
            const double size = std::abs((b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y)) / 2.0;
            area += size * (a.a + b.a + c.a) / 3.0 / 255.0;
        }
        const float out = float(shape.pixel / 2) + 0.001F;
        for (int i = 0; i < geometry.vertexCount(); ++i)
            stays = stays && points[i].x >= -out && points[i].y >= -out &&
                    points[i].x <= float(shape.size.width()) + out &&
                    points[i].y <= float(shape.size.height()) + out;
    }

    double area = 0;
    bool stays = true;
};

} // namespace

// An overlap or a gap between the parts would show in the sum of what they cover.
TEST(BoxMesh, PartsCoverTheBoxOnce) {
    const QColor red(Qt::red), blue(Qt::blue), none(Qt::transparent);
    const Row rows[] = {
        {"plain", {{110, 28}, 6, 0, red, none, 1}, roundArea(110, 28, 6)},
        {"bordered", {{110, 28}, 4, 1, red, blue, 1}, roundArea(110, 28, 4)},
        {"outlined", {{110, 28}, 4, 2, red, blue, 1}, roundArea(110, 28, 4)},
        {"clear border", {{110, 28}, 4, 2, red, none, 1}, roundArea(110, 28, 4)},
        {"frame", {{14, 14}, 4, 1, none, blue, 1}, roundArea(14, 14, 4) - roundArea(12, 12, 3)},
        {"circle", {{12, 12}, 6, 0, red, none, 1}, roundArea(12, 12, 6)},
        {"track", {{200, 4}, 2, 0, red, none, 1}, roundArea(200, 4, 2)},
        {"fine screen", {{110, 28}, 6, 1, red, blue, 0.5}, roundArea(110, 28, 6)},
        {"too round", {{40, 20}, 99, 0, red, none, 1}, roundArea(40, 20, 10)},
        {"square", {{40, 20}, 0, 0, red, none, 1}, 40 * 20},
        {"unseen", {{40, 20}, 4, 1, none, none, 1}, 0}};
    for (const auto &[name, shape, wanted] : rows) {
        Covered covered;
        covered.add(PbBoxMesh::inside(shape), shape);
        using Edge = PbBoxMesh::Edge;
        for (const Edge edge : {Edge::Top, Edge::Right, Edge::Bottom, Edge::Left})
            covered.add(PbBoxMesh::edge(shape, edge), shape);
        EXPECT_NEAR(covered.area, wanted, 0.01 * wanted + 0.5) << name;
        EXPECT_TRUE(covered.stays) << name;
    }
}
