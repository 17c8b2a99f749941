#include "model/DocumentContext.h"

namespace
{
DocumentContext *currentContext = nullptr;
}

DocumentContext::DocumentContext()
{
    currentContext = this;
}

DocumentContext::~DocumentContext()
{
    if (currentContext == this)
        currentContext = nullptr;
}

DocumentContext *DocumentContext::instance()
{
    return currentContext;
}
