#pragma once

/// The module's way in to event publishing: `Core::EventPublisher`, and `Core::EventHandlerList` that implements it.
#include "Core/EventHandlerList.h"
#include "Core/EventPublisher.h"
