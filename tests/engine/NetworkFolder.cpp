#include "NetworkFolder.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// One entry of `networks`: strength steers the first condition, deblur the second.
QByteArray entry(const QString &file, const TinyOnnx::Shape &shape, int halo) {
    QByteArray conditions = R"({"strength": 1})";
    for (int i = 1; i < shape.conditions; ++i)
        conditions += i == 1 ? R"(, {"deblur": 0.5})" : ", {}";
    return u"{\"file\": \"%1\", \"scale\": %2, \"halo\": %3, \"conditions\": [%4]}"_s.arg(file)
        .arg(shape.scale)
        .arg(halo)
        .arg(QString::fromLatin1(conditions))
        .toLatin1();
}

} // namespace

void NetworkFolder::write(const QString &name, const QByteArray &bytes) const {
    QDir().mkpath(QFileInfo(file(name)).path());
    QFile out(file(name));
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(bytes);
}

void NetworkFolder::define(const QString &category, const QString &model, const QByteArray &operation,
                           const QList<QByteArray> &roles, const QByteArray &networks) const {
    QByteArray parameters;
    for (const QByteArray &role : roles)
        parameters += (parameters.isEmpty() ? "\"" : ", \"") + role + R"(": {"role": ")" + role + "\"}";
    write(model + u".json"_s, R"({"category": ")" + category.toLatin1() + R"(", "model": ")" +
                                  model.toLatin1() + R"(", "kind": "network", "operation": ")" + operation +
                                  R"(", "parameters": {)" + parameters + R"(}, "networks": [)" + networks +
                                  "]}");
}

void NetworkFolder::defineRestorer(const QString &name, const TinyOnnx::Shape &shape, int shortfall) const {
    write(name + u".onnx"_s, TinyOnnx::residual(shape).bytes());
    define(u"Denoise"_s, name, "denoise", {"strength", "deblur", "detail"},
           entry(name + u".onnx"_s, shape, shape.halo() - shortfall));
}

void NetworkFolder::defineEnhancer(const QString &name, TinyOnnx::Shape shape,
                                   const QList<int> &scales) const {
    QByteArray networks;
    for (const int scale : scales) {
        const QString file = name + QString::number(scale) + u".onnx"_s;
        shape.scale = scale;
        write(file, TinyOnnx::residual(shape).bytes());
        networks += (networks.isEmpty() ? "" : ", ") + entry(file, shape, shape.halo());
    }
    define(u"Enhance"_s, name, "enhance", {"strength", "deblur"}, networks);
}
