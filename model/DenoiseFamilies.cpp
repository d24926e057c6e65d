#include "contracts/FilterNames.h"
#include "model/TCategorySettings.h"

using namespace Qt::StringLiterals;

QVariantMap TCategorySettings::toRawDenoise() const {
    if (category != Categories::Denoise)
        return toMap();
    TCategorySettings raw = *this;
    raw.category = Categories::Raw;
    raw.model = model == Models::LowLightBeta ? Models::RawNative : Models::RawStandard;
    raw.params = {{u"param1_standard"_s, params.value(u"param1_strongv2"_s)},
                  {u"param2_standard"_s, params.value(u"param2_strongv2"_s)},
                  {u"param3_standard"_s, 0.0F},
                  {u"param1_native"_s, params.value(u"param1_normalv2"_s)},
                  {u"param2_native"_s, params.value(u"param2_normalv2"_s)},
                  {u"param3_native"_s, 0.0F}};
    return raw.toMap();
}

QVariantMap TCategorySettings::fromRawDenoise() const {
    if (category != Categories::Raw)
        return toMap();
    TCategorySettings denoise = *this;
    denoise.category = Categories::Denoise;
    denoise.model = Models::SevereNoiseBeta;
    if (model == Models::RawNative)
        denoise.model = Models::LowLightBeta;
    else if (model == Models::RawStandard && params.value(u"param3_standard"_s).toFloat() > 0.01F)
        denoise.model = Models::SevereNoise;
    const QVariant strength = params.value(u"param1_standard"_s);
    const QVariant deblur = params.value(u"param2_standard"_s);
    denoise.params = {{u"param1_strongv2"_s, strength},
                      {u"param2_strongv2"_s, deblur},
                      {u"param1_normalv2"_s, params.value(u"param1_native"_s)},
                      {u"param2_normalv2"_s, params.value(u"param2_native"_s)},
                      {u"param1"_s, strength},
                      {u"param2"_s, deblur}};
    return denoise.toMap();
}
