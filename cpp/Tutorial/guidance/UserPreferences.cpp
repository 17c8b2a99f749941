#include "Tutorial/guidance/UserPreferences.h"

#include "SystemService/SystemService.h"
#include "Tutorial/guidance/DesktopSettings.h"

#include <QWidget>

namespace
{
const qint64 kValidFor = 2000;
} // namespace

bool UserPreferences::isMotionReduced()
{
    refresh();
    return mMotionReduced;
}

void UserPreferences::colour(QWidget *window)
{
    refresh();
    const bool wanted = mColours.resolve() != 0;
    const bool given = window->testAttribute(Qt::WA_SetPalette);
    if (wanted ? given && window->palette() == mColours : !given)
        return;
    window->setPalette(mColours);
}

void UserPreferences::refresh()
{
    if (mAsked.isValid() && !mAsked.hasExpired(kValidFor))
        return;
    mAsked.start();
    const DesktopSettings desktop = DesktopSettings::read();
    mColours = desktop.highContrast;
    const QString reduced = SystemService::getReducedMotion();
    mMotionReduced = reduced == QLatin1String("yes") || (reduced != QLatin1String("no") && desktop.reducedMotion);
}
