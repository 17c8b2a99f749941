#include "HostOptions.h"
#include "HostSession.h"
#include "Transcript.h"

#include <QApplication>
#include <QMessageBox>

#include <cstdio>

namespace
{
constexpr int kBadArguments = 2;

HostOptions readCommandLine(int argc, char **argv)
{
    // Help and complaints must not need a display.
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    arguments.first() = QCoreApplication::applicationFilePath();
    return parseOptions(arguments);
}
} // namespace

int main(int argc, char **argv)
{
    const HostOptions options = readCommandLine(argc, argv);
    if (!options.help.isEmpty()) {
        std::fputs(qPrintable(options.help), stdout);
        return 0;
    }
    if (!options.error.isEmpty()) {
        std::fprintf(stderr, "trelvane-host: %s Try --help.\n", qPrintable(options.error));
        return kBadArguments;
    }

    QApplication application(argc, argv);
    // One look on every desktop, so that a step's place fits everywhere.
    QApplication::setStyle(QStringLiteral("Fusion"));
    HostSession session(options);
    const QString error = session.begin();
    if (!error.isEmpty()) {
        std::fprintf(stderr, "trelvane-host: %s\n", qPrintable(error));
        // Who comes from the desktop's menu sees no standard error.
        if (options.inDocuments)
            QMessageBox::critical(nullptr, QStringLiteral("Trelvane"), error);
        return 1;
    }
    return QApplication::exec();
}
