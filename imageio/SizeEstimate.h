#pragma once

#include "contracts/ImageFileBackend.h"

namespace imageio {

/// Encodes bands spread over the picture at full resolution and scales. See
/// ImageFileBackend::estimate.
WriteResult estimateSize(const WriteRequest &request, const QString &extension, const RunControl &control);

} // namespace imageio
