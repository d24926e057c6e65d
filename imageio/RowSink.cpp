#include "imageio/RowSink.h"

#include "imageio/PixelConversion.h"

#include <QDebug>

#include <cstring>
#include <limits>

namespace imageio {

namespace {

int colourChannels(ColourModel model) {
    switch (model) {
    case ColourModel::Grey:
    case ColourModel::GreyAlpha:
        return 1;
    case ColourModel::Rgb:
    case ColourModel::Rgba:
        return 3;
    case ColourModel::Cmyk:
        return 4;
    }
    return 3;
}

bool hasAlpha(ColourModel model) {
    return model == ColourModel::GreyAlpha || model == ColourModel::Rgba;
}

/// Ink to light without a profile: each ink and black absorb independently.
template <typename T>
T inkToLight(T ink, T black, bool inverted) {
    constexpr std::uint64_t Full = std::numeric_limits<T>::max();
    const std::uint64_t light = inverted ? ink : Full - ink;
    const std::uint64_t white = inverted ? black : Full - black;
    return T((light * white + Full / 2) / Full);
}

} // namespace

RowSink::RowSink(const SourceRows &source)
    : m_source(source) {
    const int channels = hasAlpha(source.model) ? 4 : 3;
    m_image = std::make_shared<ImageData>(source.width, source.height, channels,
                                          source.bits == 8 ? SampleType::UInt8 : SampleType::UInt16);
    if (m_image->isNull()) {
        m_image.reset();
        return;
    }
    prepareColour();
    m_direct = !m_transform.isValid() && colourChannels(source.model) == 3 && source.channels == channels;
}

void RowSink::prepareColour() {
    const bool wide = m_source.bits == 16;
    const ProfileModel profile = profileModel(m_source.icc);
    const Layout to = wide ? Layout::Rgb16 : Layout::Rgb8;
    switch (m_source.model) {
    case ColourModel::Rgb:
    case ColourModel::Rgba:
        if (profile == ProfileModel::Rgb)
            m_image->setIccProfile(m_source.icc);
        break;
    case ColourModel::Grey:
    case ColourModel::GreyAlpha:
        qInfo("The greyscale picture was converted to RGB.");
        if (profile == ProfileModel::Grey)
            m_transform = ColourTransform::toSrgb(m_source.icc, wide ? Layout::Grey16 : Layout::Grey8, to);
        break;
    case ColourModel::Cmyk: {
        const Layout from = wide ? (m_source.cmykInverted ? Layout::CmykInverted16 : Layout::Cmyk16)
                                 : (m_source.cmykInverted ? Layout::CmykInverted8 : Layout::Cmyk8);
        if (profile == ProfileModel::Cmyk)
            m_transform = ColourTransform::toSrgb(m_source.icc, from, to);
        qInfo("The CMYK picture was converted to sRGB %s.",
              m_transform.isValid() ? "by its profile"
                                    : "without a profile, so that its colours are approximate");
        m_image->setIccProfile(srgbProfile());
        break;
    }
    }
    if (m_transform.isValid())
        m_image->setIccProfile(srgbProfile());
    else if (!m_source.icc.isEmpty() && m_image->iccProfile().isEmpty())
        qWarning("The colour profile does not fit the picture and was left out.");
}

template <typename T>
void RowSink::putRow(int y, const T *from) {
    const auto in = std::size_t(m_source.channels);
    const auto colour = std::size_t(colourChannels(m_source.model));
    const auto out = std::size_t(m_image->channels());
    const auto width = std::size_t(m_source.width);
    T *to = reinterpret_cast<T *>(m_image->row(y));

    if (m_transform.isValid()) {
        m_colour.resize(width * (colour + 3) * sizeof(T));
        T *packed = reinterpret_cast<T *>(m_colour.data());
        T *converted = packed + width * colour;
        for (std::size_t x = 0; x < width; ++x)
            std::memcpy(packed + x * colour, from + x * in, colour * sizeof(T));
        m_transform.apply(packed, converted, width);
        for (std::size_t x = 0; x < width; ++x)
            std::memcpy(to + x * out, converted + x * 3, 3 * sizeof(T));
    } else if (m_source.model == ColourModel::Cmyk) {
        for (std::size_t x = 0; x < width; ++x) {
            for (std::size_t c = 0; c < 3; ++c)
                to[x * out + c] = inkToLight(from[x * in + c], from[x * in + 3], m_source.cmykInverted);
        }
    } else {
        for (std::size_t x = 0; x < width; ++x) {
            for (std::size_t c = 0; c < 3; ++c)
                to[x * out + c] = from[x * in + (colour == 1 ? 0 : c)];
        }
    }
    if (out == 4) {
        for (std::size_t x = 0; x < width; ++x)
            to[x * 4 + 3] = from[x * in + colour];
    }
}

void RowSink::put(int y, int rows, const std::byte *data) {
    const std::size_t rowBytes =
        std::size_t(m_source.width) * std::size_t(m_source.channels) * std::size_t(m_source.bits / 8);
    for (int i = 0; i < rows; ++i) {
        const std::byte *from = data + rowBytes * std::size_t(i);
        if (m_source.bits == 8)
            putRow(y + i, reinterpret_cast<const std::uint8_t *>(from));
        else
            putRow(y + i, reinterpret_cast<const std::uint16_t *>(from));
    }
    finished(y, rows);
}

void RowSink::finished(int y, int rows) {
    if (m_source.premultiplied && m_image->hasAlpha())
        removePremultiplication(*m_image, y, rows);
}

} // namespace imageio
