#include "contracts/ImageData.h"

#include <new>

namespace {
constexpr std::size_t Alignment = 64;
}

ImageData::ImageData(int width, int height, int channels, SampleType type) {
    if (width <= 0 || height <= 0 || (channels != 3 && channels != 4))
        return;
    const std::size_t row = std::size_t(width) * std::size_t(channels) * (type == SampleType::UInt8 ? 1 : 2);
    if (row > SIZE_MAX / std::size_t(height))
        return;
    m_pixels = static_cast<std::byte *>(
        ::operator new(row * std::size_t(height), std::align_val_t(Alignment), std::nothrow));
    if (!m_pixels)
        return;
    m_width = width;
    m_height = height;
    m_channels = channels;
    m_type = type;
    m_roi = TRect(0, 0, width, height);
}

ImageData::~ImageData() {
    ::operator delete(m_pixels, std::align_val_t(Alignment));
}

std::size_t ImageData::rowBytes() const {
    return std::size_t(m_width) * std::size_t(m_channels) * (m_type == SampleType::UInt8 ? 1 : 2);
}
