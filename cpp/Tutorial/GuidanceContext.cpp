#include "Tutorial/GuidanceContext.h"

GuidanceContext::~GuidanceContext() = default;
