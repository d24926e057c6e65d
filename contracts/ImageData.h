#pragma once

#include "contracts/TRect.h"

#include <QByteArray>
#include <QMetaType>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

/// How one sample is stored. Both are unsigned, full range (0 to 255, 0 to 65535).
enum class SampleType : std::uint8_t { UInt8, UInt16 };

/// Decoded pixels: rows top to bottom, interleaved channels R G B or R G B A (alpha not
/// premultiplied), display-referred values in the space that `iccProfile` names (sRGB when it is
/// empty). Filled by whoever makes it, then published and never written again: everybody else
/// holds it as ImageRef.
class ImageData {
public:
    ImageData() = default;
    /// Allocates without clearing. Sizes must be positive, channels 3 or 4; otherwise, and when
    /// memory is short, the image stays null.
    ImageData(int width, int height, int channels, SampleType type);
    ~ImageData();
    ImageData(const ImageData &) = delete;
    ImageData &operator=(const ImageData &) = delete;

    bool isNull() const { return m_pixels == nullptr; }
    int width() const { return m_width; }
    int height() const { return m_height; }
    int channels() const { return m_channels; }
    bool hasAlpha() const { return m_channels == 4; }
    SampleType type() const { return m_type; }
    int bitDepth() const { return m_type == SampleType::UInt8 ? 8 : 16; }

    /// Bytes from one row to the next; rows are packed.
    std::size_t rowBytes() const;
    std::size_t byteCount() const { return rowBytes() * std::size_t(m_height); }

    /// The region of valid pixels: the whole image unless setRoi narrowed it.
    TRect roi() const { return m_roi; }
    void setRoi(const TRect &roi) { m_roi = roi; }

    QByteArray iccProfile() const { return m_iccProfile; }
    void setIccProfile(const QByteArray &icc) { m_iccProfile = icc; }

    std::byte *row(int y) { return m_pixels + rowBytes() * std::size_t(y); }
    const std::byte *row(int y) const { return m_pixels + rowBytes() * std::size_t(y); }
    /// Row y as samples; T must be the type of the image.
    template <typename T>
    std::span<T> samples(int y) {
        return {reinterpret_cast<T *>(row(y)), std::size_t(m_width) * std::size_t(m_channels)};
    }
    template <typename T>
    std::span<const T> samples(int y) const {
        return {reinterpret_cast<const T *>(row(y)), std::size_t(m_width) * std::size_t(m_channels)};
    }

private:
    int m_width = 0;
    int m_height = 0;
    int m_channels = 0;
    SampleType m_type = SampleType::UInt8;
    TRect m_roi;
    QByteArray m_iccProfile;
    std::byte *m_pixels = nullptr;
};

using ImageRef = std::shared_ptr<const ImageData>;

Q_DECLARE_METATYPE(std::shared_ptr<ImageData>)
