#pragma once

#include "contracts/ProcessingBackend.h"

/// The maps that travel between the program's documents and the engine, and their typed forms.
namespace EngineRequests {

/// From an image map as TImageReader gives it.
EngineInput input(const QVariantMap &image);

/// From an options map with `regenerateMask` and `forceFaceDetect`, which may be empty.
AutopilotOptions autopilotOptions(const QVariantMap &options, const Autopilot::Preferences &preferences);

/// `requestUid`, `requestRoi`, `changesCount`, `scale`, `export`, `filepath`, `error`, `image`.
QVariantMap result(int requestUid, const ProcRequest &request, const ProcResult &result);

} // namespace EngineRequests
