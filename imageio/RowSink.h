#pragma once

#include "contracts/ImageData.h"
#include "imageio/ColourProfile.h"

#include <QString>

#include <vector>

namespace imageio {

enum class ColourModel { Grey, GreyAlpha, Rgb, Rgba, Cmyk };

/// How a decoder delivers its rows.
struct SourceRows {
    int width = 0;
    int height = 0;
    int channels = 0; ///< interleaved, those beyond the colour model are passed over
    int bits = 8;     ///< 8 or 16
    ColourModel model = ColourModel::Rgb;
    bool cmykInverted = false;
    bool premultiplied = false;
    QByteArray icc;
};

/// Takes decoded rows of any colour model and fills an RGB or RGBA image with them.
class RowSink {
public:
    explicit RowSink(const SourceRows &source);

    /// Null when memory is short.
    const std::shared_ptr<ImageData> &image() const { return m_image; }
    /// True when rows may be decoded straight into image()->row(y), followed by finished().
    bool direct() const { return m_direct; }

    void put(int y, int rows, const std::byte *data);
    void finished(int y, int rows);

private:
    void prepareColour();
    template <typename T>
    void putRow(int y, const T *from);

    SourceRows m_source;
    std::shared_ptr<ImageData> m_image;
    ColourTransform m_transform;
    std::vector<std::byte> m_colour; ///< one row without alpha and further channels
    bool m_direct = false;
};

} // namespace imageio
