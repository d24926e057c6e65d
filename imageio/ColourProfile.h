#pragma once

#include <QByteArray>

#include <memory>

namespace imageio {

/// Colour model that a profile describes.
enum class ProfileModel { None, Grey, Rgb, Cmyk, Other };

ProfileModel profileModel(const QByteArray &icc);
/// The profile as a file may carry it: without bytes after its end, and empty when it is damaged so that
/// writers or colour conversion would refuse it.
QByteArray usableProfile(const QByteArray &icc);

bool isSrgb(const QByteArray &icc);

/// The same bytes on each call.
QByteArray srgbProfile();
/// Primaries and curve of Adobe RGB (1998), for cameras that name that space without a profile.
QByteArray adobeRgbProfile();

/// Sample layouts that a transform reads or writes; alpha is passed over, not copied.
enum class Layout { Grey8, Grey16, Rgb8, Rgb16, Rgba8, Rgba16, Cmyk8, Cmyk16, CmykInverted8, CmykInverted16 };

/// Converts rows of pixels between two profiles, relative colorimetric with black point compensation.
class ColourTransform {
public:
    ColourTransform() = default;
    /// From `icc` (sRGB when empty) to sRGB.
    static ColourTransform toSrgb(const QByteArray &icc, Layout from, Layout to);
    /// From `icc` (sRGB when empty) to linear light with the primaries of sRGB.
    static ColourTransform toLinearSrgb(const QByteArray &icc, Layout from, Layout to);

    bool isValid() const { return m_handle != nullptr; }
    void apply(const void *from, void *to, std::size_t pixels) const;

private:
    std::shared_ptr<void> m_handle;
};

} // namespace imageio
