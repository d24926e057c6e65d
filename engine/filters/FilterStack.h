#pragma once

#include "contracts/ProcessingBackend.h"
#include "engine/analysis/ImageStatistics.h"
#include "engine/catalogue/ModelCatalogue.h"
#include "engine/core/StageChain.h"
#include "engine/inference/NetworkStore.h"

/// Turns a request's settings into stages: reads each filter of the order, skips what is disabled
/// or not there yet (with a line in the log), and joins the rest. Returns an error text, or an
/// empty one.
QString buildFilterStack(const ProcRequest &request, const ModelCatalogue &catalogue,
                         const ImageStatistics &statistics, NetworkStore &networks, StageChain &chain);

/// Whether any filter of the request would run: without one nothing has to be measured.
bool hasEnabledFilter(const ProcRequest &request);
