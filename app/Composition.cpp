#include "app/Composition.h"

#include "contracts/FileBackends.h"
#include "contracts/TEngineController.h"
#include "engine/EngineBackend.h"
#include "imageio/FileBackend.h"

void joinBackends() {
    setImageFileBackend(makeFileBackend());
    TEngineController::setBackendFactory([] { return makeEngineBackend(); });
}
