#pragma once

#include "Support.h"
#include "frontends/TEngineController.h"
#include "tests/fakes/FakeEngine.h"

/// The engine's front end over a back end with scripted answers.
class ControllerTest : public testing::Test {
protected:
    std::unique_ptr<FakeEngine> made = std::make_unique<FakeEngine>();
    FakeEngine *engine = made.get();
    std::unique_ptr<TEngineController> controller = std::make_unique<TEngineController>(std::move(made));
};
