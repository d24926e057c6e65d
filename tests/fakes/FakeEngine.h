#pragma once

#include "contracts/ProcessingBackend.h"
#include "tests/fakes/Hold.h"

#include <QPointF>

#include <mutex>
#include <vector>

/// A function that a test may replace at any time: a call that is under way goes on with the one that it
/// began with.
template <typename Function>
class Script {
public:
    Script &operator=(Function function) {
        const std::scoped_lock lock(m_mutex);
        m_function = std::move(function);
        return *this;
    }
    Function current() const {
        const std::scoped_lock lock(m_mutex);
        return m_function;
    }

private:
    mutable std::mutex m_mutex;
    Function m_function;
};

/// An engine that gives back its input. The advice is set before the work begins; records may be read
/// at any time. Close a hold to keep work of that kind under way.
class FakeEngine : public ProcessingBackend {
public:
    using Analyse =
        std::function<AutopilotAnswer(const EngineInput &, const AutopilotOptions &, const RunControl &)>;
    using Process = std::function<ProcResult(const ProcRequest &, const RunControl &)>;

    QVariantMap models;
    AutopilotAnswer advice; ///< the answer unless onAnalyse is set
    Script<Analyse> onAnalyse;
    Script<Process> onProcess;
    Hold analysisHold;
    Hold processHold;

    std::vector<ProcRequest> requests() const { return read(m_requests); }
    std::vector<std::pair<EngineInput, AutopilotOptions>> analyses() const { return read(m_analyses); }
    std::vector<QString> catalogues() const { return read(m_catalogues); }
    std::vector<QString> clearedCaches() const { return read(m_cleared); }
    /// Of subjects: the image's uid and the settings.
    std::vector<std::pair<QString, QVariantMap>> masks() const { return read(m_masks); }
    std::vector<QPointF> hovers() const { return read(m_hovers); }

    QVariantMap catalogue(const QString &directory) override {
        record(m_catalogues, directory);
        return models;
    }
    AutopilotAnswer analyse(const EngineInput &input, const AutopilotOptions &options,
                            const RunControl &control) override {
        record(m_analyses, {input, options});
        if (!analysisHold.pass(control))
            return {.cancelled = true};
        const Analyse scripted = onAnalyse.current();
        return scripted ? scripted(input, options, control) : advice;
    }
    ProcResult process(const ProcRequest &request, const RunControl &control) override {
        record(m_requests, request);
        if (!processHold.pass(control))
            return {.cancelled = true};
        if (const Process scripted = onProcess.current())
            return scripted(request, control);
        return {.image = std::const_pointer_cast<ImageData>(request.input.image), .region = request.region};
    }
    void clearCache(const QString &uid) override { record(m_cleared, uid); }
    SubjectMasks subjectMasks(const EngineInput &input, const QVariantMap &settings,
                              const RunControl &) override {
        record(m_masks, {input.uid, settings});
        return {};
    }
    std::shared_ptr<ImageData> hoverMask(const EngineInput &, const QVariantMap &, const QPointF &position,
                                         const RunControl &) override {
        record(m_hovers, position);
        return nullptr;
    }
    /// Forgets all records.
    void forget() {
        const std::scoped_lock lock(m_mutex);
        m_requests.clear();
        m_analyses.clear();
        m_masks.clear();
        m_hovers.clear();
    }

private:
    template <typename T>
    void record(std::vector<T> &records, const T &entry) {
        const std::scoped_lock lock(m_mutex);
        records.push_back(entry);
    }
    template <typename T>
    T read(const T &records) const {
        const std::scoped_lock lock(m_mutex);
        return records;
    }

    mutable std::mutex m_mutex;
    std::vector<ProcRequest> m_requests;
    std::vector<std::pair<EngineInput, AutopilotOptions>> m_analyses;
    std::vector<QString> m_catalogues;
    std::vector<QString> m_cleared;
    std::vector<std::pair<QString, QVariantMap>> m_masks;
    std::vector<QPointF> m_hovers;
};
