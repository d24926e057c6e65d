#pragma once

#include "engine/core/Stage.h"

/// What the stages that change a picture's size have in common.
class ResizeStage : public Stage {
public:
    /// `scale`: output pixels per input pixel.
    ResizeStage(double scale, const QSize &input);

    QString name() const override { return QStringLiteral("Enhance"); }
    QSize outputSize(const QSize &) const override { return m_output; }
    TRect outputRegion(const TRect &input) const override;
    double scale() const override { return m_scale; }
    bool makesAlpha() const override { return true; }

protected:
    const double m_scale;
    const QSize m_input;
    const QSize m_output;
};
