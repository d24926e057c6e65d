#include "TinyOnnx.h"

#include <cmath>
#include <cstring>
#include <random>

namespace {

using TinyOnnx::Attribute;
using TinyOnnx::Graph;
using TinyOnnx::Node;
using TinyOnnx::Shape;
using TinyOnnx::Tensor;
using TinyOnnx::Value;

/// The few forms of the protocol-buffer encoding that a network file needs.
class Message {
public:
    Message &number(int field, std::uint64_t value) {
        varint(std::uint64_t(field) << 3);
        varint(value);
        return *this;
    }
    Message &bytes(int field, const QByteArray &value) {
        varint((std::uint64_t(field) << 3) | 2);
        varint(std::uint64_t(value.size()));
        m_data += value;
        return *this;
    }
    Message &text(int field, const std::string &value) {
        return bytes(field, QByteArray::fromStdString(value));
    }
    const QByteArray &data() const { return m_data; }

private:
    void varint(std::uint64_t value) {
        for (; value >= 128; value >>= 7)
            m_data += char(value | 128);
        m_data += char(value);
    }
    QByteArray m_data;
};

template <typename T>
QByteArray raw(const std::vector<T> &values) {
    return {reinterpret_cast<const char *>(values.data()), qsizetype(values.size() * sizeof(T))};
}

QByteArray encode(const Tensor &tensor) {
    Message message;
    for (const std::int64_t dim : tensor.dims)
        message.number(1, std::uint64_t(dim));
    const bool whole = !tensor.ints.empty();
    message.number(2, whole ? 7 : 1).text(8, tensor.name);
    return message.bytes(9, whole ? raw(tensor.ints) : raw(tensor.floats)).data();
}

QByteArray encode(const Attribute &attribute) {
    Message message;
    message.text(1, attribute.name);
    if (!attribute.text.empty())
        return message.text(4, attribute.text).number(20, 3).data();
    if (!attribute.list)
        return message.number(3, std::uint64_t(attribute.ints.front())).number(20, 2).data();
    for (const std::int64_t value : attribute.ints)
        message.number(8, std::uint64_t(value));
    return message.number(20, 7).data();
}

QByteArray encode(const Value &value) {
    Message shape;
    for (std::size_t i = 0; i < value.dims.size(); ++i) {
        Message dim;
        value.dims[i] < 0 ? dim.text(2, value.name + char('a' + i))
                          : dim.number(1, std::uint64_t(value.dims[i]));
        shape.bytes(1, dim.data());
    }
    const QByteArray tensor = Message().number(1, 1).bytes(2, shape.data()).data();
    return Message().text(1, value.name).bytes(2, Message().bytes(1, tensor).data()).data();
}

QByteArray encode(const std::string &text) {
    return QByteArray::fromStdString(text);
}

QByteArray encode(const Node &node);

template <typename T>
void each(Message &message, int field, const std::vector<T> &list) {
    for (const T &one : list)
        message.bytes(field, encode(one));
}

QByteArray encode(const Node &node) {
    Message message;
    each(message, 1, node.inputs);
    each(message, 2, node.outputs);
    message.text(4, node.operation);
    each(message, 5, node.attributes);
    return message.data();
}

/// Adds layers to a graph, each on the one before.
class Layers {
public:
    Layers(Graph &graph, const Shape &shape)
        : m_graph(graph)
        , m_random(shape.seed) {}

    std::string add(const std::string &operation, std::vector<std::string> inputs,
                    std::vector<Attribute> attributes = {}) {
        const std::string name = operation + std::to_string(m_graph.nodes.size());
        m_graph.nodes.push_back({operation, std::move(inputs), {name}, std::move(attributes)});
        return name;
    }
    std::string constant(const std::vector<std::int64_t> &values) {
        const std::string name = "constant" + std::to_string(m_graph.constants.size());
        m_graph.constants.push_back({name, {std::int64_t(values.size())}, {}, values});
        return name;
    }
    std::string convolution(const std::string &input, int from, int to, float gain) {
        const std::string name = "weights" + std::to_string(m_graph.constants.size());
        std::uniform_real_distribution<float> random(-1, 1);
        std::vector<float> weights(std::size_t(from) * std::size_t(to) * 9);
        for (float &w : weights)
            w = gain * random(m_random) / std::sqrt(float(from) * 3);
        m_graph.constants.push_back({name, {to, from, 3, 3}, weights, {}});
        return add("Conv", {input, name},
                   {{"kernel_shape", {3, 3}, {}, true}, {"pads", {1, 1, 1, 1}, {}, true}});
    }

private:
    Graph &m_graph;
    std::minstd_rand m_random;
};

} // namespace

QByteArray TinyOnnx::Graph::bytes() const {
    Message graph;
    each(graph, 1, nodes);
    graph.text(2, "test");
    each(graph, 5, constants);
    each(graph, 11, inputs);
    each(graph, 12, outputs);
    const QByteArray operators = Message().number(2, 17).data();
    return Message().number(1, 8).bytes(7, graph.data()).bytes(8, operators).data();
}

TinyOnnx::Graph TinyOnnx::residual(const Shape &shape) {
    Graph graph;
    graph.inputs = {{"image", {1, 3, -1, -1}}, {"condition", {1, shape.conditions}}};
    graph.outputs = {{"result", {1, 3, -1, -1}}};
    Layers layers(graph, shape);
    const std::string blocks = layers.add("SpaceToDepth", {"image"}, {{"blocksize", {2}, {}, false}});
    const std::string size =
        layers.add("Slice", {layers.add("Shape", {blocks}), layers.constant({2}), layers.constant({4})});
    const std::string four =
        layers.add("Reshape", {"condition", layers.constant({1, shape.conditions, 1, 1})});
    const std::string target =
        layers.add("Concat", {layers.constant({1, shape.conditions}), size}, {{"axis", {0}, {}, false}});
    const std::string maps = layers.add("Expand", {four, target});
    const std::string all = layers.add("Concat", {blocks, maps}, {{"axis", {1}, {}, false}});
    std::string last = layers.convolution(all, 12 + shape.conditions, shape.channels, 1);
    for (int i = 0; i < shape.blocks; ++i) {
        const std::string first =
            layers.add("Relu", {layers.convolution(last, shape.channels, shape.channels, 1)});
        last = layers.add("Add", {last, layers.convolution(first, shape.channels, shape.channels, 0.5f)});
    }
    const int side = 2 * shape.scale;
    const std::string tail = layers.convolution(last, shape.channels, 3 * side * side, shape.change);
    const std::string change =
        layers.add("DepthToSpace", {tail}, {{"blocksize", {side}, {}, false}, {"mode", {}, "CRD", false}});
    if (shape.scale == 1)
        layers.add("Add", {"image", change});
    graph.nodes.back().outputs = {"result"};
    return graph;
}
