#pragma once

#include "contracts/ImageFileBackend.h"

#include <memory>

/// Image files through the libraries of the system.
std::shared_ptr<ImageFileBackend> makeFileBackend();
