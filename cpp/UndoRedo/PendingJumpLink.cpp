#include "UndoRedo/PendingJumpLink.h"

#include "model/DocumentContext.h"

void setPendingJumpLink(const QString &linkInfo)
{
    if (DocumentContext *context = DocumentContext::instance())
        context->setPendingJumpLink(linkInfo);
}
