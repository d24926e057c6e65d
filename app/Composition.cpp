#include "app/Composition.h"

#include "engine/EngineBackend.h"
#include "frontends/FileBackends.h"
#include "frontends/TEngineController.h"
#include "imageio/FileBackend.h"

void joinBackends() {
    setImageFileBackend(makeFileBackend());
    TEngineController::setBackendFactory([] { return makeEngineBackend(); });
}
