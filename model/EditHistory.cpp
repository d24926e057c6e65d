#include "model/EditHistory.h"

bool EditState::sameCrop(const EditState &other) const {
    return cropRoi == other.cropRoi && rotation == other.rotation && cropRatio == other.cropRatio;
}

EditHistory::EditHistory(const EditState &start)
    : m_states{start} {
}

bool EditHistory::record(const EditState &state) {
    if (state == m_states.at(m_current))
        return false;
    m_states.resize(m_current + 1);
    m_states.append(state);
    if (m_states.size() > MaxSteps + 1)
        m_states.removeFirst();
    m_current = m_states.size() - 1;
    return true;
}

void EditHistory::amend(const EditState &state) {
    m_states[m_current] = state;
}

std::optional<EditState> EditHistory::undo() {
    return moveTo(m_current - 1);
}

std::optional<EditState> EditHistory::redo() {
    return moveTo(m_current + 1);
}

std::optional<EditState> EditHistory::moveTo(qsizetype index) {
    if (index < 0 || index >= m_states.size())
        return std::nullopt;
    m_current = index;
    return m_states.at(index);
}
