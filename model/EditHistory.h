#pragma once

#include "model/TCategorySettings.h"

#include <QList>
#include <QMap>
#include <QRectF>
#include <QSizeF>
#include <QStringList>

#include <optional>

/// What the user decides about one image, as undo and redo see it.
struct EditState {
    QMap<QString, TCategorySettings> filterControls;
    QStringList filterOrder;
    QRectF cropRoi;
    double rotation = 0;
    QSizeF cropRatio;

    bool operator==(const EditState &) const = default;
    bool sameCrop(const EditState &other) const;
};

/// The steps of one image, for undo and redo. A value; the states share what they have in common.
class EditHistory {
public:
    /// Steps that can be undone; with one more, the oldest drops.
    static constexpr qsizetype MaxSteps = 200;

    explicit EditHistory(const EditState &start);

    /// True when the state differs from the last recorded one: it becomes a step, and redo is cleared.
    bool record(const EditState &state);
    /// Replaces the last recorded state. Steps stay as they are on both sides.
    void amend(const EditState &state);

    bool endsIn(const EditState &state) const { return m_states.at(m_current) == state; }
    bool canUndo() const { return m_current > 0; }
    bool canRedo() const { return m_current + 1 < m_states.size(); }
    /// The state that becomes the last recorded one; none at the end of the history.
    std::optional<EditState> undo();
    std::optional<EditState> redo();

private:
    std::optional<EditState> moveTo(qsizetype index);

    QList<EditState> m_states;
    qsizetype m_current = 0;
};
