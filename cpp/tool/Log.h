#pragma once

#include <QDebug>
#include <QStringList>

#include <initializer_list>

/// The one form of the log statements of this program's classes: the folder of the source, the
/// qualified name of the function and the line number, followed by the values of interest.
///
///     Log::debug("cpp/Tutorial", "TutorialManager::onConnected", __LINE__) << suffix;
///
/// No message context is passed on, so that a release build and a debug build write the same lines.
namespace Log
{
inline QDebug debug(const char *folder, const char *function, int line)
{
    return QMessageLogger().debug() << folder << function << line;
}

inline QDebug warning(const char *folder, const char *function, int line)
{
    return QMessageLogger().warning() << folder << function << line;
}

/// The line of `debug(folder, function, line) << texts`, for what comes by the hundred thousand: it is put together
/// without a stream.
void debugTexts(const char *folder, const char *function, int line, const QStringList &texts);
/// The line of `debug(folder, function, line) << text << text`, in the same way.
void debugEachText(const char *folder, const char *function, int line, std::initializer_list<QString> texts);
} // namespace Log
