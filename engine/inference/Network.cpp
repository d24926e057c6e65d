#include "engine/inference/Network.h"

#include "engine/inference/Runtime.h"

#include <onnxruntime_run_options_config_keys.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <cmath>
#include <new>

struct Network::Session {
    Ort::Session session;
    std::int64_t conditions;

    void run(const float *image, int width, int height, const std::vector<float> &values, float *result,
             int scale, const Ort::RunOptions &options);
    QString mismatch() const;
};

namespace {

constexpr qint64 MaxFile = qint64(64) << 20;
constexpr const char *InputNames[] = {"image", "condition"};
constexpr const char *OutputNames[] = {"result"};

/// The runtime's explanation without the code in front and on one line.
QString explanation(const std::exception &error) {
    return QString::fromUtf8(error.what()).simplified().left(300);
}

bool isShortOfMemory(const QString &text) {
    return text.contains(QStringLiteral("allocate memory")) || text.contains(QStringLiteral("bad_alloc")) ||
           text.contains(QStringLiteral("Available memory"));
}

/// Whether a value is a float tensor of these dimensions; below 0 stands for any.
bool isTensor(const Ort::TypeInfo &type, const std::vector<std::int64_t> &wanted) {
    if (type.GetONNXType() != ONNX_TYPE_TENSOR)
        return false;
    const auto info = type.GetTensorTypeAndShapeInfo();
    const std::vector<std::int64_t> shape = info.GetShape();
    if (info.GetElementType() != ONNX_TENSOR_ELEMENT_DATA_TYPE_FLOAT || shape.size() != wanted.size())
        return false;
    for (std::size_t i = 0; i < shape.size(); ++i)
        if (shape[i] >= 0 && wanted[i] >= 0 && shape[i] != wanted[i])
            return false;
    return true;
}

} // namespace

/// In what the file differs from what is asked of it; empty when in nothing.
QString Network::Session::mismatch() const {
    Ort::AllocatorWithDefaultOptions allocator;
    const auto inputName = [&](std::size_t i) { return session.GetInputNameAllocated(i, allocator); };
    if (session.GetInputCount() != 2 || session.GetOutputCount() != 1 ||
        std::string(inputName(0).get()) != InputNames[0] ||
        std::string(inputName(1).get()) != InputNames[1] ||
        std::string(session.GetOutputNameAllocated(0, allocator).get()) != OutputNames[0])
        return QCoreApplication::translate("Engine", "its inputs and outputs have other names");
    if (!isTensor(session.GetInputTypeInfo(0), {1, 3, -1, -1}) ||
        !isTensor(session.GetInputTypeInfo(1), {1, conditions}) ||
        !isTensor(session.GetOutputTypeInfo(0), {-1, -1, -1, -1}))
        return QCoreApplication::translate("Engine", "its inputs and outputs have other shapes");
    return {};
}

void Network::Session::run(const float *image, int width, int height, const std::vector<float> &values,
                           float *result, int scale, const Ort::RunOptions &options) {
    const auto cpu = Ort::MemoryInfo::CreateCpu(OrtArenaAllocator, OrtMemTypeDefault);
    const auto tensor = [&cpu](const float *data, const std::vector<std::int64_t> &shape) {
        std::size_t count = 1;
        for (const std::int64_t side : shape)
            count *= std::size_t(side);
        // The interface knows no constant tensors; inputs are only read.
        return Ort::Value::CreateTensor<float>(cpu, const_cast<float *>(data), count, shape.data(),
                                               shape.size());
    };
    const std::array inputs = {tensor(image, {1, 3, height, width}),
                               tensor(values.data(), {1, std::int64_t(values.size())})};
    Ort::Value output = tensor(result, {1, 3, std::int64_t(height) * scale, std::int64_t(width) * scale});
    session.Run(options, InputNames, inputs.data(), inputs.size(), OutputNames, &output, 1);
}

Network::Network(const QString &name, int scale, std::unique_ptr<Session> session)
    : m_name(name)
    , m_scale(scale)
    , m_session(std::move(session)) {
}

Network::~Network() = default;

std::shared_ptr<const Network> Network::load(const QString &path, int scale, int conditions, QString *error) {
    const QString name = QFileInfo(path).fileName();
    const auto fail = [&](const QString &why) {
        *error = QCoreApplication::translate("Engine", "%1 cannot be used: %2").arg(name, why);
        return nullptr;
    };
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.exists() ? file.errorString()
                                  : QCoreApplication::translate("Engine", "the file is missing"));
    if (file.size() > MaxFile)
        return fail(QCoreApplication::translate("Engine", "it is larger than %1 MiB").arg(MaxFile >> 20));
    try {
        auto session = std::make_unique<Session>(Runtime::makeSession(file.readAll()), conditions);
        const QString mismatch = session->mismatch();
        if (!mismatch.isEmpty())
            return fail(mismatch);
        const std::shared_ptr<const Network> network(new Network(name, scale, std::move(session)));
        constexpr int Side = 4 * Alignment;
        const std::vector<float> image(3 * Side * Side, 0.5f), values(std::size_t(conditions), 0.5f);
        std::vector<float> result(image.size() * std::size_t(scale * scale));
        *error = network->run(image.data(), Side, Side, values, result.data(), {});
        if (!error->isEmpty())
            return nullptr;
        if (!std::all_of(result.begin(), result.end(), [](float v) { return std::isfinite(v); }))
            return fail(QCoreApplication::translate("Engine", "it computes no numbers"));
        return network;
    } catch (const std::bad_alloc &) {
        return fail(QCoreApplication::translate("Engine", "there is not enough memory"));
    } catch (const std::exception &damage) {
        return fail(
            QCoreApplication::translate("Engine", "the file is damaged (%1)").arg(explanation(damage)));
    }
}

QString Network::run(const float *image, int width, int height, const std::vector<float> &conditions,
                     float *result, const std::stop_token &stop) const {
    QString text;
    try {
        Ort::RunOptions options;
        const std::stop_callback stopper(stop, [&options] { options.SetTerminate(); });
        m_session->run(image, width, height, conditions, result, m_scale, options);
        return {};
    } catch (const std::bad_alloc &) {
        throw;
    } catch (const std::exception &failure) {
        text = explanation(failure);
    }
    if (stop.stop_requested())
        return {};
    if (isShortOfMemory(text))
        throw std::bad_alloc();
    return QCoreApplication::translate("Engine", "%1 cannot be run: %2").arg(m_name, text);
}

void Network::releaseMemory() const {
    constexpr int Side = Alignment;
    const std::vector<float> image(3 * Side * Side), values(std::size_t(m_session->conditions));
    std::vector<float> result(image.size() * std::size_t(m_scale * m_scale));
    try {
        Ort::RunOptions options;
        options.AddConfigEntry(kOrtRunOptionsConfigEnableMemoryArenaShrinkage, "cpu:0");
        m_session->run(image.data(), Side, Side, values, result.data(), m_scale, options);
    } catch (const std::exception &) {
        // The memory then goes back another time: nothing depends on it.
    }
}
