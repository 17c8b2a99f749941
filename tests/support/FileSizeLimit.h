#pragma once

#include <csignal>
#include <sys/resource.h>

/// Lets no file of this process grow past a size for as long as it lives, as a full disk would.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        // Otherwise the limit ends the process.
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &mFormer);
        const rlimit limit = { bytes, mFormer.rlim_max };
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &mFormer); }

private:
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

    rlimit mFormer;
};
