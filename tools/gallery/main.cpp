#include "quick/Gui.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QEventLoop>
#include <QImage>
#include <QLocale>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml>

#include <cstdio>

namespace
{
int warningCount = 0;
QtMessageHandler previousHandler = nullptr;

void countWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        ++warningCount;
    }
    previousHandler(type, context, message);
}

void waitMilliseconds(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Saves a picture of the page in each theme. Fails where a theme looks like an
/// earlier one or the toolkit had something to complain about.
bool takePictures(QQuickWindow *window, const QString &folder)
{
    QObject *themeBox = window->findChild<QObject *>(QStringLiteral("theme"));
    const QStringList themes = themeBox->property("model").toStringList();
    QVector<QImage> pictures;
    for (int index = 0; index < themes.size(); ++index) {
        themeBox->setProperty("currentIndex", index);
        // Fades of the toolkit's controls come to rest.
        waitMilliseconds(500);
        const QImage picture = window->grabWindow();
        const QString file = QDir(folder).filePath(themes.at(index) + QStringLiteral(".png"));
        if (picture.isNull() || pictures.contains(picture) || !picture.save(file)) {
            std::fprintf(stderr, "no picture of its own: %s\n", qPrintable(file));
            return false;
        }
        pictures.append(picture);
    }
    return themes.size() > 1 && warningCount == 0;
}
} // namespace

int main(int argc, char *argv[])
{
    previousHandler = qInstallMessageHandler(countWarnings);
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption pictures(QStringLiteral("screenshots"),
                                      QStringLiteral("Save a picture of each theme in <folder> and end."),
                                      QStringLiteral("folder"));
    parser.addOption(pictures);
    parser.process(application);

    QLocale::setDefault(QLocale::c());
    qmlRegisterSingletonType<Gui>(
        "Morvi.kess", 1, 0, "Gui",
        [](QQmlEngine *engine, QJSEngine *scriptEngine) -> QObject * { return Gui::create(engine, scriptEngine); });
    QQmlApplicationEngine engine;
    engine.load(QUrl(QStringLiteral("qrc:/gallery/Gallery.qml")));
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (window == nullptr) {
        return 1;
    }
    if (parser.isSet(pictures)) {
        const QString folder = parser.value(pictures);
        return QDir().mkpath(folder) && takePictures(window, folder) ? 0 : 1;
    }
    return QApplication::exec();
}
