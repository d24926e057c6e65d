#pragma once

#include <QByteArray>

#include <cstdint>
#include <string>
#include <vector>

/// Writes network files of our own for tests, byte by byte, so that damage can be put anywhere.
namespace TinyOnnx {

struct Tensor {
    std::string name;
    std::vector<std::int64_t> dims;
    std::vector<float> floats;
    std::vector<std::int64_t> ints; ///< instead of floats
};
struct Attribute {
    std::string name;
    std::vector<std::int64_t> ints; ///< a single one is an integer, several are a list
    std::string text;               ///< instead of numbers
    bool list = false;
};
struct Node {
    std::string operation;
    std::vector<std::string> inputs, outputs;
    std::vector<Attribute> attributes;
};
/// Dimensions below 0 are free.
struct Value {
    std::string name;
    std::vector<std::int64_t> dims;
};
struct Graph {
    std::vector<Node> nodes;
    std::vector<Tensor> constants;
    std::vector<Value> inputs, outputs;
    QByteArray bytes() const;
};

/// How the shipped networks are built, with weights drawn by rule: pixels in blocks of two, a head,
/// residual blocks, a tail, conditions as maps.
struct Shape {
    int channels = 8;
    int blocks = 1;
    int conditions = 4;
    int scale = 1;
    float change = 0.2f; ///< how much the result differs from the picture
    unsigned seed = 1;
    int halo() const { return 2 * (2 + 2 * blocks); }
};
Graph residual(const Shape &shape);

} // namespace TinyOnnx
