#pragma once

#include "contracts/ImageFileBackend.h"

#include <memory>

/// The one back end for image files that readers, writers and thumbnail writers share; never null.
/// Until the composition root sets one, and after null was set, it refuses everything with a message.
/// Setting one makes its formats those of fileFormats(). Main thread only.
std::shared_ptr<ImageFileBackend> imageFileBackend();
void setImageFileBackend(std::shared_ptr<ImageFileBackend> backend);
