#include "imageio/ColourProfile.h"

#include <lcms2.h>

#include <QtEndian>

#include <cmath>

namespace imageio {

namespace {

using Profile = std::unique_ptr<void, decltype(&cmsCloseProfile)>;

Profile fromBytes(const QByteArray &icc) {
    if (icc.isEmpty())
        return {cmsCreate_sRGBProfile(), &cmsCloseProfile};
    return {cmsOpenProfileFromMem(icc.constData(), cmsUInt32Number(icc.size())), &cmsCloseProfile};
}

Profile linearSrgb() {
    // Primaries of ITU-R BT.709 and the white point D65.
    const cmsCIExyY white{0.3127, 0.3290, 1};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1}, {0.30, 0.60, 1}, {0.15, 0.06, 1}};
    cmsToneCurve *curve = cmsBuildGamma(nullptr, 1);
    cmsToneCurve *curves[] = {curve, curve, curve};
    Profile profile{cmsCreateRGBProfile(&white, &primaries, curves), &cmsCloseProfile};
    cmsFreeToneCurve(curve);
    return profile;
}

QByteArray toBytes(const Profile &profile) {
    cmsUInt32Number size = 0;
    if (!profile || !cmsSaveProfileToMem(profile.get(), nullptr, &size))
        return {};
    QByteArray bytes(qsizetype(size), '\0');
    cmsSaveProfileToMem(profile.get(), bytes.data(), &size);
    // The header holds the time of creation; a fixed one keeps files the same from run to run.
    static constexpr quint16 Created[] = {2024, 1, 1, 0, 0, 0};
    for (int i = 0; i < 6; ++i)
        qToBigEndian(Created[i], bytes.data() + 24 + 2 * i);
    return bytes;
}

cmsUInt32Number format(Layout layout) {
    switch (layout) {
    case Layout::Grey8:
        return TYPE_GRAY_8;
    case Layout::Grey16:
        return TYPE_GRAY_16;
    case Layout::Rgb8:
        return TYPE_RGB_8;
    case Layout::Rgb16:
        return TYPE_RGB_16;
    case Layout::Rgba8:
        return TYPE_RGBA_8;
    case Layout::Rgba16:
        return TYPE_RGBA_16;
    case Layout::Cmyk8:
        return TYPE_CMYK_8;
    case Layout::Cmyk16:
        return TYPE_CMYK_16;
    case Layout::CmykInverted8:
        return TYPE_CMYK_8_REV;
    case Layout::CmykInverted16:
        return TYPE_CMYK_16_REV;
    }
    return TYPE_RGB_8;
}

std::shared_ptr<void> link(const Profile &from, Layout fromLayout, const Profile &to, Layout toLayout) {
    if (!from || !to)
        return nullptr;
    // No cache: the transform may be used by several threads at once.
    const cmsUInt32Number flags = cmsFLAGS_NOCACHE | cmsFLAGS_BLACKPOINTCOMPENSATION;
    cmsHTRANSFORM handle = cmsCreateTransform(from.get(), format(fromLayout), to.get(), format(toLayout),
                                              INTENT_RELATIVE_COLORIMETRIC, flags);
    return handle ? std::shared_ptr<void>(handle, &cmsDeleteTransform) : nullptr;
}

constexpr qsizetype HeaderBytes = 132; ///< with the number of tags

quint32 numberAt(const QByteArray &icc, qsizetype at) {
    return qFromBigEndian<quint32>(icc.constData() + at);
}

/// What readers of PNG and others insist on; the colour library is more lenient.
bool isWellFormed(const QByteArray &icc) {
    constexpr qsizetype EntryBytes = 12;
    const quint32 size = quint32(icc.size());
    const quint32 tags = numberAt(icc, 128);
    if (icc.mid(36, 4) != "acsp" || (icc.at(8) > 3 && size % 4 != 0) || numberAt(icc, 64) > 0xffff ||
        tags > (size - HeaderBytes) / EntryBytes)
        return false;
    for (quint32 i = 0; i < tags; ++i) {
        const qsizetype entry = HeaderBytes + qsizetype(i) * EntryBytes;
        const quint32 begin = numberAt(icc, entry + 4);
        if (begin > size || numberAt(icc, entry + 8) > size - begin)
            return false;
    }
    const QByteArray connection = icc.mid(20, 4);
    const QByteArray kind = icc.mid(12, 4);
    return (connection == "XYZ " || connection == "Lab ") && kind != "abst" && kind != "link";
}

/// Whether colours can be converted from the profile; of a kind that no picture here can have, it is not
/// tried.
bool convertsToSrgb(const QByteArray &icc) {
    switch (profileModel(icc)) {
    case ProfileModel::Grey:
        return ColourTransform::toSrgb(icc, Layout::Grey8, Layout::Rgb8).isValid();
    case ProfileModel::Rgb:
        return ColourTransform::toSrgb(icc, Layout::Rgb8, Layout::Rgb8).isValid();
    case ProfileModel::Cmyk:
        return ColourTransform::toSrgb(icc, Layout::Cmyk8, Layout::Rgb8).isValid();
    case ProfileModel::Other:
        return true;
    case ProfileModel::None:
        break;
    }
    return false;
}

} // namespace

ProfileModel profileModel(const QByteArray &icc) {
    if (icc.size() < HeaderBytes)
        return ProfileModel::None;
    const Profile profile = fromBytes(icc);
    if (!profile)
        return ProfileModel::None;
    switch (cmsGetColorSpace(profile.get())) {
    case cmsSigGrayData:
        return ProfileModel::Grey;
    case cmsSigRgbData:
        return ProfileModel::Rgb;
    case cmsSigCmykData:
        return ProfileModel::Cmyk;
    default:
        return ProfileModel::Other;
    }
}

QByteArray usableProfile(const QByteArray &icc) {
    if (icc.size() < HeaderBytes || numberAt(icc, 0) > quint64(icc.size()) || numberAt(icc, 0) < HeaderBytes)
        return {};
    const QByteArray whole = icc.first(numberAt(icc, 0));
    return isWellFormed(whole) && convertsToSrgb(whole) ? whole : QByteArray();
}

bool isSrgb(const QByteArray &icc) {
    if (icc.isEmpty() || icc == srgbProfile())
        return true;
    const ColourTransform transform = ColourTransform::toSrgb(icc, Layout::Rgb16, Layout::Rgb16);
    if (!transform.isValid())
        return false;
    constexpr int Steps = 5;
    constexpr int Tolerance = 160; // 0.6 of an 8-bit step
    for (int i = 0; i < Steps * Steps * Steps; ++i) {
        const int step = 65535 / (Steps - 1);
        const quint16 from[3] = {quint16(i % Steps * step), quint16(i / Steps % Steps * step),
                                 quint16(i / (Steps * Steps) * step)};
        quint16 to[3];
        transform.apply(from, to, 1);
        for (int c = 0; c < 3; ++c) {
            if (std::abs(int(from[c]) - int(to[c])) > Tolerance)
                return false;
        }
    }
    return true;
}

QByteArray srgbProfile() {
    static const QByteArray bytes = toBytes(fromBytes({}));
    return bytes;
}

QByteArray adobeRgbProfile() {
    static const QByteArray bytes = [] {
        const cmsCIExyY white{0.3127, 0.3290, 1};
        const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1}, {0.21, 0.71, 1}, {0.15, 0.06, 1}};
        cmsToneCurve *curve = cmsBuildGamma(nullptr, 563.0 / 256);
        cmsToneCurve *curves[] = {curve, curve, curve};
        const Profile profile{cmsCreateRGBProfile(&white, &primaries, curves), &cmsCloseProfile};
        cmsFreeToneCurve(curve);
        return toBytes(profile);
    }();
    return bytes;
}

ColourTransform ColourTransform::toSrgb(const QByteArray &icc, Layout from, Layout to) {
    ColourTransform result;
    result.m_handle = link(fromBytes(icc), from, fromBytes({}), to);
    return result;
}

ColourTransform ColourTransform::toLinearSrgb(const QByteArray &icc, Layout from, Layout to) {
    ColourTransform result;
    result.m_handle = link(fromBytes(icc), from, linearSrgb(), to);
    return result;
}

void ColourTransform::apply(const void *from, void *to, std::size_t pixels) const {
    cmsDoTransform(m_handle.get(), from, to, cmsUInt32Number(pixels));
}

} // namespace imageio
