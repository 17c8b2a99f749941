// usage: trelvane_bench_screens [--size N]... [--only ROW]... [--memory] [--json FILE]
//
// What a writer waits for in the window of the authoring mode, by the writer's own keys and mouse, until the next frame
// shows it. The figure is the processor time of the process: what waits for a timer costs none.

#include "ScreenBench.h"

#include "QmlTypes.h"
#include "quick/ModalGuard.h"
#include "Tutorial/ProcessGlobals.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QJsonDocument>
#include <QLocale>
#include <QTemporaryDir>

#include <cstdlib>

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    // The program takes its first argument for the suffix of the host's name, so the window gets its own.
    QByteArray suffix = QByteArrayLiteral("-bench-") + QByteArray::number(qHash(home.path()));
    int windowArgc = 2;
    char *windowArguments[] = { argv[0], suffix.data(), nullptr };
    QApplication application(windowArgc, windowArguments);
    QCoreApplication::setApplicationName(QStringLiteral("Trelvane"));
    QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
    QLocale::setDefault(QLocale::c());

    QCommandLineParser parser;
    const QCommandLineOption size(QStringLiteral("size"), QString(), QStringLiteral("N"));
    const QCommandLineOption only(QStringLiteral("only"), QString(), QStringLiteral("ROW"));
    const QCommandLineOption memory(QStringLiteral("memory"));
    const QCommandLineOption json(QStringLiteral("json"), QString(), QStringLiteral("FILE"));
    parser.addOptions({ size, only, memory, json });
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    parser.process(arguments);
    QVector<int> sizes;
    for (const QString &each : parser.values(size))
        sizes.append(each.toInt());
    if (sizes.isEmpty())
        sizes = parser.isSet(memory) ? QVector<int>{ 1000, 10000, 100000 } : QVector<int>{ 100, 1000, 10000 };

    // The log's cost is the same for each line and would drown what is measured.

    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const ModalGuard modalGuard;
    applicationObject = &application;
    closeLogFileHook = [] {};
    registerQmlTypes();
    int result = 0;
    {
        ScreenBench bench(sizes, parser.values(only));
        if (parser.isSet(memory))
            bench.measureMemory();
        else
            bench.run();
        QFile file(parser.value(json));
        if (parser.isSet(json)
            && (!file.open(QFile::WriteOnly) || file.write(QJsonDocument(bench.rows()).toJson()) < 0 || !file.flush()))
            result = 1;
    }
    // The window's own end would wait for the host.
    std::_Exit(result);
}
