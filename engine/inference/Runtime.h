#pragma once

#include <QByteArray>

#include <onnxruntime_cxx_api.h>

/// The network runtime of this process, started when the first network is loaded. All networks
/// share one arena of working memory.
namespace Runtime {

/// A session that runs on the calling thread alone. Throws Ort::Exception where the bytes are no
/// network that the runtime can run.
Ort::Session makeSession(const QByteArray &bytes);

} // namespace Runtime
