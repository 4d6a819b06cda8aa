#pragma once

/// What a host includes: the composition, the bridge to the core, and the interfaces of the interactors.
#include "Subtitles/Adapters/HostBridge.h"
#include "Subtitles/Entities/ISubtitleCollectionInteractor.h"
#include "Subtitles/Entities/ISubtitleCollectionInteractorPool.h"
#include "Subtitles/Entities/ISubtitlesInteractor.h"
#include "Subtitles/UseCases/Composition.h"
#include "Subtitles/UseCases/IUseCasesFactory.h"
