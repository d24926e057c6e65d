#include "imageio/LosslessJpeg.h"

#include <algorithm>
#include <array>
#include <bit>

namespace imageio {

namespace {

constexpr int Channels = 3;
constexpr int Categories = 17; ///< a difference of n bits, n from 0 to 16

struct Code {
    std::uint32_t bits = 0;
    int length = 0;
};
using CodeTable = std::array<Code, Categories>;

int category(int difference) {
    return int(std::bit_width(unsigned(difference < 0 ? -difference : difference)));
}

/// Calls `visit` with each difference to the prediction: the sample to the left, at the left edge
/// the one above, and half range at the start.
template <typename Visit>
void forEachDifference(const std::uint16_t *samples, int width, int height, std::size_t stride, Visit visit) {
    for (int y = 0; y < height; ++y) {
        const std::uint16_t *row = samples + stride * std::size_t(y);
        for (int x = 0; x < width; ++x) {
            for (int c = 0; c < Channels; ++c) {
                const int i = x * Channels + c;
                const int predicted = x > 0 ? row[i - Channels] : (y > 0 ? (row - stride)[c] : 0x8000);
                int difference = (row[i] - predicted) & 0xffff;
                if (difference > 0x8000)
                    difference -= 0x10000;
                visit(difference);
            }
        }
    }
}

/// Lengths by Huffman's construction. One entry beyond the categories takes the code of all ones,
/// which the format forbids.
std::array<int, Categories> codeLengths(const std::array<std::uint64_t, Categories> &counts,
                                        std::uint64_t total) {
    struct Node {
        std::uint64_t weight;
        int left;
        int right;
    };
    std::vector<Node> nodes;
    std::vector<int> open;
    for (int i = 0; i <= Categories; ++i) {
        // No category is so rare that its code grows over 16 bits.
        const std::uint64_t weight = i == Categories ? 0 : counts[std::size_t(i)] + total / 1024 + 1;
        open.push_back(i);
        nodes.push_back({weight, -1, -1});
    }
    const auto heavier = [&](int a, int b) {
        return nodes[std::size_t(a)].weight != nodes[std::size_t(b)].weight
                   ? nodes[std::size_t(a)].weight > nodes[std::size_t(b)].weight
                   : a < b;
    };
    while (open.size() > 1) {
        std::ranges::sort(open, heavier);
        const int a = open.back();
        open.pop_back();
        const int b = open.back();
        open.back() = int(nodes.size());
        nodes.push_back({nodes[std::size_t(a)].weight + nodes[std::size_t(b)].weight, a, b});
    }
    std::array<int, Categories> lengths{};
    std::vector<std::pair<int, int>> walk{{open.front(), 0}};
    while (!walk.empty()) {
        const auto [index, depth] = walk.back();
        walk.pop_back();
        const Node node = nodes[std::size_t(index)];
        if (node.left >= 0) {
            walk.emplace_back(node.left, depth + 1);
            walk.emplace_back(node.right, depth + 1);
        } else if (index < Categories) {
            lengths[std::size_t(index)] = depth;
        }
    }
    return lengths;
}

class BitWriter {
public:
    explicit BitWriter(std::vector<std::uint8_t> &out)
        : m_out(out) {}

    void put(std::uint32_t bits, int count) {
        m_buffer = m_buffer << count | bits;
        m_count += count;
        while (m_count >= 8) {
            m_count -= 8;
            byte(std::uint8_t(m_buffer >> m_count));
        }
    }
    void flush() {
        if (m_count > 0)
            byte(std::uint8_t((m_buffer << (8 - m_count)) | (0xff >> m_count)));
        m_count = 0;
    }

private:
    void byte(std::uint8_t value) {
        m_out.push_back(value);
        if (value == 0xff)
            m_out.push_back(0);
    }

    std::vector<std::uint8_t> &m_out;
    std::uint64_t m_buffer = 0;
    int m_count = 0;
};

void putWord(std::vector<std::uint8_t> &out, int value) {
    out.push_back(std::uint8_t(value >> 8));
    out.push_back(std::uint8_t(value));
}

/// Writes the headers and answers the codes that belong to the lengths.
CodeTable writeHeaders(std::vector<std::uint8_t> &out, const std::array<int, Categories> &lengths, int width,
                       int height) {
    putWord(out, 0xffd8);
    putWord(out, 0xffc3);
    putWord(out, 8 + 3 * Channels);
    out.push_back(16);
    putWord(out, height);
    putWord(out, width);
    out.push_back(Channels);
    for (int c = 0; c < Channels; ++c)
        out.insert(out.end(), {std::uint8_t(c), 0x11, 0});

    putWord(out, 0xffc4);
    putWord(out, 3 + 16 + Categories);
    out.push_back(0);
    for (int length = 1; length <= 16; ++length)
        out.push_back(std::uint8_t(std::ranges::count(lengths, length)));
    CodeTable codes;
    std::uint32_t next = 0;
    for (int length = 1; length <= 16; ++length, next <<= 1) {
        for (int i = 0; i < Categories; ++i) {
            if (lengths[std::size_t(i)] != length)
                continue;
            out.push_back(std::uint8_t(i));
            codes[std::size_t(i)] = {next++, length};
        }
    }

    putWord(out, 0xffda);
    putWord(out, 6 + 2 * Channels);
    out.push_back(Channels);
    for (int c = 0; c < Channels; ++c)
        out.insert(out.end(), {std::uint8_t(c), 0});
    out.insert(out.end(), {1, 0, 0});
    return codes;
}

} // namespace

std::vector<std::uint8_t> encodeLosslessJpeg(const std::uint16_t *samples, int width, int height,
                                             std::size_t stride) {
    std::array<std::uint64_t, Categories> counts{};
    forEachDifference(samples, width, height, stride, [&](int d) { ++counts[std::size_t(category(d))]; });
    const auto total = std::uint64_t(width) * std::uint64_t(height) * Channels;

    std::vector<std::uint8_t> out;
    out.reserve(total * 2);
    const CodeTable codes = writeHeaders(out, codeLengths(counts, total), width, height);
    BitWriter bits(out);
    forEachDifference(samples, width, height, stride, [&](int d) {
        const int n = category(d);
        const Code code = codes[std::size_t(n)];
        bits.put(code.bits, code.length);
        if (n > 0 && n < 16)
            bits.put(std::uint32_t(d < 0 ? d + (1 << n) - 1 : d), n);
    });
    bits.flush();
    putWord(out, 0xffd9);
    return out;
}

} // namespace imageio
