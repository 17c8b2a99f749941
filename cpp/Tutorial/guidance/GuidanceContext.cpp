#include "Tutorial/guidance/GuidanceContext.h"

GuidanceContext::~GuidanceContext() = default;
