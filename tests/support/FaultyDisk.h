#pragma once

/// Lets one call of the system fail that has to do with a file below the current folder. A program that has this among
/// its objects calls it in place of the system's library.
namespace FaultyDisk
{
/// What happens at that call; any other number is the error that it fails with.
enum Fault {
    End = -2, // of the process, whose code is whether a file was given its name too early
    Short = -1, // a write takes the half, and the next call has no room
    None
};

/// Counts the calls from 1, and lets that one fail. Without room for new files each attempt to make one is refused.
void begin(int call, int fault, bool newFiles = true);
/// The calls until now.
int end();
/// Whether a power cut would leave all that was written, under the names that it was given.
bool isOnDisk();
} // namespace FaultyDisk
