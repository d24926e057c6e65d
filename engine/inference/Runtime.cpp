#include "engine/inference/Runtime.h"

#include <onnxruntime_session_options_config_keys.h>

#include <algorithm>
#include <iostream>
#include <mutex>
#include <optional>
#include <sstream>
#include <thread>

namespace {

/// The distribution's build registers its operator schemas twice and says so on standard error, a
/// thousand lines, while the first session of a process comes up. While an object of this class
/// lives, what is written to std::cerr waits; then everything but those lines is passed on.
class SchemaSilence {
public:
    SchemaSilence()
        : m_before(std::cerr.rdbuf(m_held.rdbuf())) {}
    ~SchemaSilence() {
        std::cerr.rdbuf(m_before);
        bool blank = true;
        for (std::string line; std::getline(m_held, line);) {
            const bool noise = line.starts_with("Schema error") || (blank && line.empty());
            blank = noise;
            if (!noise)
                std::cerr << line << '\n';
        }
    }
    SchemaSilence(const SchemaSilence &) = delete;
    SchemaSilence &operator=(const SchemaSilence &) = delete;

private:
    std::stringstream m_held;
    std::streambuf *m_before;
};

/// Failures are reported by exceptions; the runtime's own lines would only repeat them.
void dropLine(void *, OrtLoggingLevel, const char *, const char *, const char *, const char *) {
}

Ort::Env makeEnvironment() {
    constexpr std::size_t Base = std::size_t(1) << 30, PerCore = std::size_t(512) << 20;
    constexpr int GrowByRequest = 1;
    Ort::Env environment(ORT_LOGGING_LEVEL_FATAL, "orvane", dropLine, nullptr);
    const auto cpu = Ort::MemoryInfo::CreateCpu(OrtArenaAllocator, OrtMemTypeDefault);
    const std::size_t cores = std::max(1u, std::thread::hardware_concurrency());
    const Ort::ArenaCfg arena(Base + cores * PerCore, GrowByRequest, -1, -1);
    environment.CreateAndRegisterAllocator(cpu, arena);
    return environment;
}

/// One thread for each session: the engine runs tiles side by side, so a tile's sums don't depend
/// on the number of cores, and no thread of the runtime is left to spin. Tiles come in a few shapes
/// only by habit, so no plan of memory is kept for each.
Ort::SessionOptions sessionOptions() {
    Ort::SessionOptions options;
    options.SetIntraOpNumThreads(1);
    options.SetInterOpNumThreads(1);
    options.SetExecutionMode(ORT_SEQUENTIAL);
    options.SetGraphOptimizationLevel(ORT_ENABLE_ALL);
    options.DisableMemPattern();
    options.AddConfigEntry(kOrtSessionOptionsConfigAllowIntraOpSpinning, "0");
    options.AddConfigEntry(kOrtSessionOptionsConfigUseEnvAllocators, "1");
    return options;
}

} // namespace

Ort::Session Runtime::makeSession(const QByteArray &bytes) {
    static std::mutex mutex;
    static bool schemasRegistered = false;
    const std::lock_guard lock(mutex);
    std::optional<SchemaSilence> silence;
    if (!schemasRegistered)
        silence.emplace();
    static Ort::Env environment = makeEnvironment();
    Ort::Session session(environment, bytes.constData(), std::size_t(bytes.size()), sessionOptions());
    schemasRegistered = true;
    return session;
}
