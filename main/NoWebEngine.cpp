// In the place of WebEngine.cpp, where the build has no web engine.

#include "WebEngine.h"

void WebEngine::prepare(bool) { }

void WebEngine::initialize() { }
