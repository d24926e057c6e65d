#pragma once

#include <QMetaType>
#include <QVariantMap>

/// The settings of one filter of one image. A value: copies are cheap, writing to one detaches it.
/// Strengths in `params` are fractions, 1.0 stands for 100 on a slider.
struct TCategorySettings {
    QString category;
    QString model; ///< may stay empty for categories without models
    QVariantMap params;
    QVariantMap subjectSettings; ///< "model", "sensitivity", "feathering", "strokes", "originalSubjectPath"
    bool enabled = false;

    TCategorySettings() = default;
    TCategorySettings(const QString &filterCategory, const QString &filterModel,
                      const QVariantMap &filterParams, bool filterEnabled);

    bool operator==(const TCategorySettings &) const = default;

    /// The five-key map `{ category, model, params, enabled, subjectSettings }`.
    QVariantMap toMap() const;

    /// Lays a map over this filter and returns whether anything changed. Parameters may be under
    /// "params" or flat beside the fixed keys. Never removes a key.
    bool merge(const QVariantMap &map);

    /// Writes one parameter, or `enabled` for that key; true when the value differs. A script array
    /// is kept as a QVariantList.
    bool setParam(const QString &key, const QVariant &value);

    /// Whether this filter has the settings of a filter's map (five-key or Autopilot's form). Two
    /// disabled filters match whatever else they hold; parameters that only this filter has, and
    /// what was painted, don't count.
    bool matches(const QVariantMap &map) const;

    /// Puts the subject back to the start values with the given subject type.
    void resetSubject(const QString &type);

    /// This filter as one of the other denoise family, "RAW" or "Denoise"; unchanged when it is
    /// not of the family to convert from.
    QVariantMap toRawDenoise() const;
    QVariantMap fromRawDenoise() const;
};

Q_DECLARE_METATYPE(TCategorySettings)
