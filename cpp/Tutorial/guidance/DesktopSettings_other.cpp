#include "Tutorial/guidance/DesktopSettings.h"

DesktopSettings DesktopSettings::read()
{
    return {};
}
