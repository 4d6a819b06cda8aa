#pragma once

#include "Hypodermic/Container.h"
#include "Hypodermic/ContainerBuilder.h"
