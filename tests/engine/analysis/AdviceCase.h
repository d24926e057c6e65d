#pragma once

#include "engine/analysis/Analyse.h"

#include <gtest/gtest.h>

/// Made-up measurements and what Autopilot answers to them.
namespace AdviceCase {

/// A 20-megapixel picture with this noise (8-bit scale) and blur.
inline ImageStatistics measured(double noise, double blur) {
    ImageStatistics s;
    s.width = 5000;
    s.height = 4000;
    s.noise.fill(float(noise / 255));
    s.lumaNoise = float(0.669 * noise / 255);
    s.blur = s.softness = float(blur);
    s.blurKind = BlurKind::Soft;
    s.edgeShare = 0.05f;
    s.lumaLow = 0.03f;
    s.lumaMedian = 0.45f;
    s.lumaHigh = 0.95f;
    return s;
}

inline const ModelCatalogue &shippedModels() {
    static const auto models = ModelCatalogue::read(QStringLiteral(ORVANE_MODELS));
    return *models;
}

struct Case {
    ImageStatistics statistics = measured(0.5, 0.6);
    EngineInput input;
    AutopilotOptions options;

    Autopilot::Preferences &preferences() { return options.preferences; }
    AutopilotAnswer answer() const { return analyseImage(input, statistics, shippedModels(), options, {}); }
    QVariantMap entry(const char *category) const {
        return answer().settings.value(QString::fromLatin1(category)).toMap();
    }
    bool enabled(const char *category) const {
        return entry(category).value(QStringLiteral("enabled")).toBool();
    }
    QString model(const char *category) const {
        return entry(category).value(QStringLiteral("model")).toString();
    }
    double number(const char *category, const char *key) const {
        return entry(category).value(QString::fromLatin1(key)).toDouble();
    }
};

inline Case with(double noise, double blur, BlurKind kind = BlurKind::Soft) {
    Case c;
    c.statistics = measured(noise, blur);
    c.statistics.blurKind = kind;
    return c;
}

inline QString words(const char *text) {
    return QString::fromLatin1(text);
}

} // namespace AdviceCase
