#pragma once

#include <QByteArray>
#include <QVariant>

/// What a desktop on X11 tells its programs: the text of a property that its settings manager keeps.
namespace XSettings
{
/// The setting of that name, an int or a QByteArray; null if the settings don't have it. Settings that are cut off or
/// malformed end where they make no sense.
QVariant value(const QByteArray &settings, const QByteArray &name);
} // namespace XSettings
