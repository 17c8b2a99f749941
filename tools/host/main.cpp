#include "HostOptions.h"
#include "HostSession.h"
#include "Transcript.h"

#include <QApplication>
#include <QFont>
#include <QMessageBox>
#include <QProcessEnvironment>

#include <cstdio>

namespace
{
constexpr int kBadArguments = 2;
constexpr int kFontSize = 13; // pixels

HostOptions readCommandLine(int argc, char **argv)
{
    // Help and complaints must not need a display.
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    arguments.first() = QCoreApplication::applicationFilePath();
    return parseOptions(arguments);
}

/// The link and the places of steps are in pixels, and so is the editor. The program follows the desktop.
void becomeUnscaled()
{
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    qunsetenv("QT_SCALE_FACTOR");
    qunsetenv("QT_SCREEN_SCALE_FACTORS");
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

    const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    becomeUnscaled();
    QApplication application(argc, argv);
    // One look on every desktop, so that a step's place fits everywhere.
    QApplication::setStyle(QStringLiteral("Fusion"));
    QFont font = QApplication::font();
    font.setPixelSize(kFontSize);
    QApplication::setFont(font);
    HostSession session(options, environment);
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
