// What stands in for a function of the system is not checked by it.
#undef _FORTIFY_SOURCE

#include "support/FaultyDisk.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <set>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
struct State
{
    bool isCounting = false;
    bool mayMakeFiles = true;
    int calls = 0;
    int faultyCall = 0;
    int fault = FaultyDisk::None;
    std::string folder;
    bool isTooEarly = false; // that a file was named or closed
} state;

// Never freed: a process closes files before main and after it, too.
std::set<int> &openFiles()
{
    static auto *const files = new std::set<int>;
    return *files;
}

/// Those that were not synchronised.
std::set<int> &writtenFiles()
{
    static auto *const files = new std::set<int>;
    return *files;
}

/// The folders with a name that was not synchronised.
std::set<ino_t> &foldersOfNewNames()
{
    static auto *const folders = new std::set<ino_t>;
    return *folders;
}

ino_t folderOf(const char *path)
{
    const std::string whole = path;
    const size_t end = whole.rfind('/');
    struct stat status = {};
    stat(end == std::string::npos ? "." : whole.substr(0, end + 1).c_str(), &status);
    return status.st_ino;
}

bool isOurs(const char *path)
{
    if (!state.isCounting)
        return false;
    char resolved[PATH_MAX];
    const std::string place = realpath(path, resolved) ? resolved : path;
    return place[0] != '/' || place.rfind(state.folder, 0) == 0;
}

bool isOurs(int file)
{
    return state.isCounting && openFiles().count(file) > 0;
}

template <typename Concerned>
bool fails(Concerned concerned)
{
    if (!isOurs(concerned) || ++state.calls != state.faultyCall)
        return false;
    if (state.fault == FaultyDisk::End)
        _exit(state.isTooEarly);
    errno = state.fault;
    return state.fault > FaultyDisk::None;
}

/// Lets the call fail, or makes it by the system's own function.
template <typename Concerned, typename Result, typename... Parameters>
Result attempt(Concerned concerned, Result (*)(Parameters...), const char *name, Parameters... parameters)
{
    if (fails(concerned))
        return -1;
    return reinterpret_cast<Result (*)(Parameters...)>(dlsym(RTLD_NEXT, name))(parameters...);
}

int named(const char *path, int result)
{
    if (result == 0 && isOurs(path))
        foldersOfNewNames().insert(folderOf(path));
    state.isTooEarly = state.isTooEarly || !writtenFiles().empty();
    return result;
}
} // namespace

void FaultyDisk::begin(int call, int kind, bool newFiles)
{
    char path[4096];
    state = { true, newFiles, 0, call, kind, getcwd(path, sizeof path), false };
    writtenFiles().clear();
    foldersOfNewNames().clear();
}

int FaultyDisk::end()
{
    state.isCounting = false;
    return state.calls;
}

bool FaultyDisk::isOnDisk()
{
    return writtenFiles().empty() && foldersOfNewNames().empty() && !state.isTooEarly;
}

// By these names the system's are found, whatever its headers declare.
extern "C" {
int faultyOpen(const char *path, int flags, mode_t mode) __asm__("open64");
int faultyPlainOpen(const char *path, int flags, mode_t mode) __asm__("open") __attribute__((alias("open64")));
int faultyClose(int file) __asm__("close");
ssize_t faultyRead(int file, void *bytes, size_t size) __asm__("read");
ssize_t faultyWrite(int file, const void *bytes, size_t size) __asm__("write");
int faultySync(int file) __asm__("fsync");
int faultyDataSync(int file) __asm__("fdatasync") __attribute__((alias("fsync")));
void faultySyncAll() __asm__("sync");
int faultyRename(const char *from, const char *to) __asm__("rename");
int faultyMakeFolder(const char *path, mode_t mode) __asm__("mkdir");
int faultyLink(int fromFolder, const char *from, int toFolder, const char *to, int flags) __asm__("linkat");

int faultyOpen(const char *path, int flags, mode_t mode)
{
    const bool isRefused = !state.mayMakeFiles && ((flags & O_EXCL) != 0 || (flags & O_TMPFILE) == O_TMPFILE);
    if (isRefused && isOurs(path)) {
        errno = EACCES;
        return -1;
    }
    const int file = attempt(path, faultyOpen, "open64", path, flags, mode);
    if (isOurs(path))
        openFiles().insert(file);
    return file;
}

// It is closed all the same.
int faultyClose(int file)
{
    const bool isFaulty = fails(file);
    openFiles().erase(file);
    state.isTooEarly = writtenFiles().erase(file) > 0 || state.isTooEarly;
    const int result = attempt(file, faultyClose, "close", file);
    errno = isFaulty ? state.fault : errno;
    return isFaulty ? -1 : result;
}

ssize_t faultyRead(int file, void *bytes, size_t size)
{
    return attempt(file, faultyRead, "read", file, bytes, size);
}

ssize_t faultyWrite(int file, const void *bytes, size_t size)
{
    const bool isShort = isOurs(file) && state.fault == FaultyDisk::Short && state.calls + 1 == state.faultyCall;
    const ssize_t result = attempt(file, faultyWrite, "write", file, bytes, isShort ? size / 2 : size);
    if (isOurs(file))
        writtenFiles().insert(file);
    if (isShort) {
        ++state.faultyCall;
        state.fault = ENOSPC;
    }
    return result;
}

// No real disk is waited for.
int faultySync(int file)
{
    if (fails(file))
        return -1;
    struct stat status = {};
    if (fstat(file, &status) == 0 && S_ISDIR(status.st_mode))
        foldersOfNewNames().erase(status.st_ino);
    writtenFiles().erase(file);
    return 0;
}

void faultySyncAll()
{
    foldersOfNewNames().clear();
}

int faultyRename(const char *from, const char *to)
{
    const int result = named(to, attempt(to, faultyRename, "rename", from, to));
    if (result != 0)
        foldersOfNewNames().erase(folderOf(to)); // the new file goes
    return result;
}

int faultyMakeFolder(const char *path, mode_t mode)
{
    const int result = attempt(path, faultyMakeFolder, "mkdir", path, mode);
    if (result == 0 && isOurs(path))
        foldersOfNewNames().insert(folderOf(path));
    return result;
}

int faultyLink(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    return named(to, attempt(to, faultyLink, "linkat", fromFolder, from, toFolder, to, flags));
}
}
