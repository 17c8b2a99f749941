#pragma once

class QString;

/// Hands what a command has for the screens to the program round the document, if there is one.
void setPendingJumpLink(const QString &linkInfo);
