#pragma once

#include <QtGlobal>

/// Whether the other end of a local socket belongs to the user of this process, or to root. True where the platform
/// does not tell.
bool isOwnUserOrRoot(qintptr socketDescriptor);
