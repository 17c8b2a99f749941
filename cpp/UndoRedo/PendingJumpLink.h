#pragma once

class QString;

/// Hands the link to the program round the document, if there is one.
void setPendingJumpLink(const QString &linkInfo);
