#include "WeightCount.h"

#include <functional>

namespace {

/// The file is nested messages of fields; these are the numbers of those that lead to a tensor's sides.
constexpr quint64 Graph = 7, Initializer = 5, Dims = 1;
constexpr qsizetype KernelSides = 4;

/// A field of a message: a number, or bytes that may be a message again.
struct Field {
    quint64 number = 0, value = 0;
    QByteArrayView bytes;
};

quint64 takeNumber(QByteArrayView &rest) {
    quint64 value = 0;
    for (int shift = 0; shift < 64 && !rest.isEmpty(); shift += 7) {
        const auto byte = quint8(rest.front());
        rest = rest.sliced(1);
        value |= quint64(byte & 0x7f) << shift;
        if (byte < 0x80)
            break;
    }
    return value;
}

void eachField(QByteArrayView rest, const std::function<void(const Field &)> &visit) {
    while (!rest.isEmpty()) {
        const quint64 key = takeNumber(rest);
        Field field{key >> 3, 0, {}};
        const quint64 kind = key & 7;
        qsizetype length = kind == 1 ? 8 : kind == 5 ? 4 : 0;
        if (kind == 0)
            field.value = takeNumber(rest);
        else if (kind == 2)
            length = qsizetype(takeNumber(rest));
        if (length < 0 || length > rest.size())
            return;
        field.bytes = rest.first(length);
        rest = rest.sliced(length);
        visit(field);
    }
}

} // namespace

double convolutionWeights(const QByteArray &onnx) {
    double sum = 0;
    const auto tensor = [&sum](const Field &part) {
        qsizetype sides = 0;
        double count = 1;
        eachField(part.bytes, [&](const Field &field) {
            if (field.number == Dims) {
                ++sides;
                count *= double(field.value);
            }
        });
        if (sides == KernelSides)
            sum += count;
    };
    eachField(onnx, [&](const Field &model) {
        if (model.number == Graph)
            eachField(model.bytes, [&](const Field &graph) {
                if (graph.number == Initializer)
                    tensor(graph);
            });
    });
    return sum;
}
