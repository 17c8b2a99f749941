#pragma once

#include <QPointer>

class QApplication;
class QObject;

/// Process-wide pointers that main sets. They own nothing.

/// The application object, from its making until its end; null in a test that sets none.
extern QApplication *applicationObject;

/// The first root object of the QML engine; null when the engine has none.
extern QPointer<QObject> rootObject;

/// Closes the log before the process ends by itself; null while there is no log.
extern void (*closeLogFileHook)();
