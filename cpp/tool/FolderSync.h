#pragma once

class QString;

/// Brings to the disk which files stand in the folder, so that one that was put in its place stays there after a power
/// cut. False with a warning in the log if the disk refused; a folder that can't be brought there alone counts as done.
bool syncFolder(const QString &path);
