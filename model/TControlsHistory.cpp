#include "contracts/FilterNames.h"
#include "model/TControls.h"

using namespace Qt::StringLiterals;

EditState TControls::currentEdits() const {
    const TImageSettings settings = currentSettings();
    EditState state{.filterControls = settings.filterControls,
                    .filterOrder = settings.filterOrder,
                    .cropRoi = cropRoi(),
                    .rotation = rotation(),
                    .cropRatio = currentImageData().value(u"cropRatio"_s).toSizeF()};
    // The key is about one preview run and no setting: it makes no step and must not come back.
    const auto upscale = std::as_const(state.filterControls).constFind(Categories::Enhance);
    if (upscale != state.filterControls.cend() && upscale->params.contains(Params::Updated))
        state.filterControls[Categories::Enhance].params.remove(Params::Updated);
    return state;
}

void TControls::recordEdit() {
    if (currentImage().isEmpty())
        return;
    const auto history = m_editHistories.find(currentImage());
    if (history == m_editHistories.end())
        m_editHistories.insert(currentImage(), EditHistory(currentEdits()));
    else if (history->record(currentEdits()))
        Q_EMIT editHistoryChanged();
}

void TControls::amendEdit() {
    const auto history = m_editHistories.find(currentImage());
    if (history != m_editHistories.end())
        history->amend(currentEdits());
}

void TControls::forgetEdits() {
    if (currentImage().isEmpty())
        return;
    m_editHistories.insert(currentImage(), EditHistory(currentEdits()));
    Q_EMIT editHistoryChanged();
}

void TControls::startEdits() {
    const auto history = m_editHistories.constFind(currentImage());
    if (history == m_editHistories.cend() || !history->endsIn(currentEdits()))
        forgetEdits();
}

bool TControls::undoEdit() {
    return moveThroughEdits(&EditHistory::undo);
}

bool TControls::redoEdit() {
    return moveThroughEdits(&EditHistory::redo);
}

bool TControls::canUndo() const {
    const auto history = m_editHistories.constFind(currentImage());
    return history != m_editHistories.cend() && history->canUndo();
}

bool TControls::canRedo() const {
    const auto history = m_editHistories.constFind(currentImage());
    return history != m_editHistories.cend() && history->canRedo();
}

// A listener may record again, so that nothing of the history is held on to while signals fire.
bool TControls::moveThroughEdits(std::optional<EditState> (EditHistory::*move)()) {
    const auto history = m_editHistories.find(currentImage());
    if (history == m_editHistories.end())
        return false;
    const bool recorded = history->record(currentEdits());
    const std::optional<EditState> state = ((*history).*move)();
    if (state)
        restoreEdits(*state);
    if (recorded || state)
        Q_EMIT editHistoryChanged();
    return state.has_value();
}

void TControls::restoreEdits(const EditState &state) {
    const bool sameCrop = state.sameCrop(currentEdits());
    const QString modelBefore = currentModel();
    TImageSettings &settings = currentSettings();
    settings.filterControls = state.filterControls;
    settings.filterOrder = state.filterOrder;
    settings.markChanged();
    if (!sameCrop)
        storeInCurrentImageData({{u"cropRoi"_s, state.cropRoi},
                                 {u"rotation"_s, state.rotation},
                                 {u"cropRatio"_s, state.cropRatio}});
    if (currentModel() != modelBefore)
        Q_EMIT currentModelChanged();
    Q_EMIT currentControlsChanged();
    Q_EMIT filterOrderChanged();
    Q_EMIT areFiltersEnabledChanged();
    Q_EMIT hasS3UploadableImagesChanged();
    Q_EMIT subjectSettingsChanged(subjectSettings());
}
