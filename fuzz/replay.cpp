// Feeds a fuzz target the files of the folders that are named, without libFuzzer.

#include "FuzzTarget.h"

#include <QDir>
#include <QFile>

int main(int argc, char *argv[])
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        const QDir folder(QFile::decodeName(argv[i]));
        for (const QFileInfo &info : folder.entryInfoList(QDir::Files, QDir::Name)) {
            std::fprintf(stderr, "%s\n", qPrintable(info.filePath()));
            QFile file(info.filePath());
            FuzzTarget::require(file.open(QFile::ReadOnly), "the file can be read");
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()), size_t(bytes.size()));
            ++count;
        }
    }
    return count > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
