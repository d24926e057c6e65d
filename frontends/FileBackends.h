#pragma once

#include "contracts/ImageFileBackend.h"

#include <memory>

/// The one back end for image files that readers, writers and thumbnail writers share; never null.
/// Until the composition root sets one, and after null was set, it refuses everything with a message.
/// Main thread only.
std::shared_ptr<ImageFileBackend> imageFileBackend();
void setImageFileBackend(std::shared_ptr<ImageFileBackend> backend);

/// The lists in use by everything that asks about extensions: built-in ones until the back end that is set
/// brings those of its image library. Main thread only.
const FileFormats &fileFormats();
