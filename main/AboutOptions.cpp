#include "AboutOptions.h"

#include <cstdio>
#include <cstring>

const char kVersion[] = "0.1.0";

namespace
{
const char kHelp[] =
    "Usage: trelvane-author [--language LANGUAGE] [suffix]\n"
    "The authoring mode for tutorials. A host editor starts it, and listens on the local server \"qelm\" + suffix.\n"
    "To write without one, type: trelvane-host --author --documents\n"
    "\n"
    "  --language LANGUAGE  the language of the program's own texts, this time: ja or en\n"
    "  --help               print this text\n"
    "  --version            print the version\n";
}

bool answersAboutOption(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--help") == 0) {
            std::fputs(kHelp, stdout);
            return true;
        }
        if (std::strcmp(argv[i], "--version") == 0) {
            std::printf("trelvane-author %s\n", kVersion);
            return true;
        }
    }
    return false;
}
