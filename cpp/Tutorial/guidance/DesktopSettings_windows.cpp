#include "Tutorial/guidance/DesktopSettings.h"

#include <qt_windows.h>

// The toolkit has the system's colours, and follows when they change.
DesktopSettings DesktopSettings::read()
{
    DesktopSettings settings;
    BOOL animated = TRUE;
    settings.reducedMotion = SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &animated, 0) && !animated;
    return settings;
}
