#include "Tutorial/ProcessGlobals.h"

#include <QObject>

QApplication *applicationObject = nullptr;
QPointer<QObject> rootObject;
void (*closeLogFileHook)() = nullptr;
