#include "AuthoringWindow.h"

#include "HostStub.h"
#include "SampleScenario.h"

#include "quick/TreeListItemSelectionModel.h"
#include "tool/DataSupport.h"
#include "Tutorial/translation/TranslationSource.h"
#include "Tutorial/TutorialManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QQmlExpression>
#include <QtQml>
#include <QtTest>
#include <QWheelEvent>

namespace
{
const QString kName = QStringLiteral("Sample");
const QString kTutorials = QStringLiteral("tutorial-win/qml/Tutorial");
const QString kTranslations = QStringLiteral("tutorial-win/translations");
constexpr int kRowHeight = 24;

QString path()
{
    return QFileInfo(kTutorials + QLatin1Char('/') + kName + QStringLiteral(".js")).absoluteFilePath();
}

void writeHints(const QString &locale, int itemCount)
{
    QVector<TranslationSource::Entry> entries;
    for (int id = 1; id <= itemCount; ++id)
        entries.append({ QStringLiteral("#%1").arg(id), SampleScenario::hint(id, locale) });
    QDomDocument document = TranslationSource::emptyDocument(locale);
    TranslationSource::writeMessages(document, kName, entries);
    DataSupport::writeFile(kTranslations + QLatin1Char('/') + locale + QStringLiteral(".ts"), document.toByteArray());
}

QPoint centre(const QQuickItem *item)
{
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
}
} // namespace

AuthoringWindow::AuthoringWindow() : mHost(std::make_unique<HostStub>(QCoreApplication::arguments().value(1)))
{
    QDir::setCurrent(mFolder.path());
    QDir().mkpath(kTutorials);
    QDir().mkpath(kTranslations);
    store(0, QStringLiteral("var scenario = [];"));
    mEngine.load(QUrl(QStringLiteral("qrc:/qml/main.qml")));
    mWindow = qobject_cast<QQuickWindow *>(mEngine.rootObjects().value(0));
    if (!mWindow)
        qFatal("the window does not load");
    mTree = item("treeListView");
    for (QObject *object : mTree->findChildren<QObject *>()) {
        if (object->inherits("QQmlTimer"))
            mTimers.append(object);
    }
    mWindow->resize(966, 788);
    activate();
    managerInstance->unload();
}

void AuthoringWindow::activate()
{
    mWindow->requestActivate();
    waitUntil("the window is active", [this] { return QGuiApplication::focusWindow() == mWindow; });
}

AuthoringWindow::~AuthoringWindow()
{
    QDir::setCurrent(QDir::rootPath());
}

void AuthoringWindow::store(int itemCount, const QString &scenario)
{
    mEmpty = itemCount == 0;
    DataSupport::writeFile(path(), scenario.toUtf8());
    writeHints(QStringLiteral("ja_JP"), itemCount);
    writeHints(QStringLiteral("en_US"), itemCount);
}

Cost AuthoringWindow::open()
{
    settle();
    managerInstance->setModified(false);
    managerInstance->unload();
    waitUntil("nothing is selected", [this] { return currentId() < 0; });
    settle();
    // What the dialog "Open tutorial" does with the file that was chosen.
    const auto show = [this] {
        load();
        evaluate(QStringLiteral("updateSettings()"));
    };
    return measure(show, [this] { return mEmpty || currentId() >= 0; });
}

void AuthoringWindow::load()
{
    const QString error = managerInstance->loadTutorial(path());
    if (!error.isEmpty())
        qFatal("%s", qPrintable(error));
}

Cost AuthoringWindow::measure(const std::function<void()> &act, const std::function<bool()> &done)
{
    const Measurement measurement;
    act();
    do {
        waitUntil("the window is done", [&] { return (!done || done()) && rests(); });
        waitForFrame(mWindow);
    } while (!rests());
    return measurement.cost();
}

bool AuthoringWindow::rests() const
{
    const auto isIdle = [](const QObject *timer) { return !timer || !timer->property("running").toBool(); };
    return std::all_of(mTimers.cbegin(), mTimers.cend(), isIdle);
}

void AuthoringWindow::settle()
{
    measure([] {});
}

TreeListItemSelectionModel *AuthoringWindow::selection() const
{
    return mTree->findChild<TreeListItemSelectionModel *>();
}

QQuickItem *AuthoringWindow::row(int id) const
{
    QVariant delegate;
    QMetaObject::invokeMethod(mTree, "getItemById", Q_RETURN_ARG(QVariant, delegate), Q_ARG(QVariant, id));
    return delegate.value<QQuickItem *>();
}

int AuthoringWindow::currentId() const
{
    return item("TutorialSettingItem")->property("itemId").toInt();
}

QVariant AuthoringWindow::evaluate(const QString &script) const
{
    QQmlExpression expression(qmlContext(mWindow), mWindow, script);
    const QVariant result = expression.evaluate();
    if (expression.hasError())
        qFatal("%s", qPrintable(expression.error().toString()));
    return result;
}

void AuthoringWindow::press(int key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(mWindow, Qt::Key(key), modifiers);
}

void AuthoringWindow::click(const QQuickItem *target) const
{
    QTest::mouseClick(target->window(), Qt::LeftButton, Qt::NoModifier, centre(target));
}

void AuthoringWindow::click(int id, Qt::KeyboardModifiers modifiers) const
{
    QTest::mouseClick(mWindow, Qt::LeftButton, modifiers, at(id));
}

QPoint AuthoringWindow::at(int id, int dy) const
{
    constexpr int kInsideTheName = 100;
    const QQuickItem *found = row(id);
    if (!found)
        qFatal("no row of the id %d in view", id);
    return QPoint(kInsideTheName, qRound(found->mapToScene(QPointF(0, found->height() / 2)).y()) + dy);
}

void AuthoringWindow::wheel(int pixels) const
{
    const QPointF place = centre(mTree);
    const QPoint pixelDelta(0, -pixels);
    const QPoint angleDelta = pixelDelta;
#if QT_VERSION >= QT_VERSION_CHECK(5, 12, 0)
    QWheelEvent event(place, mWindow->mapToGlobal(place.toPoint()), pixelDelta, angleDelta, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
#else
    QWheelEvent event(place, mWindow->mapToGlobal(place.toPoint()), pixelDelta, angleDelta, angleDelta.y(),
                      Qt::Vertical, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase);
#endif
    QCoreApplication::sendEvent(mWindow, &event);
}

void AuthoringWindow::scrollToRow(int number)
{
    QMetaObject::invokeMethod(item("view"), "scrollTo", Q_ARG(QVariant, number * kRowHeight));
    settle();
}

qreal AuthoringWindow::scrolled() const
{
    QVariant place;
    QMetaObject::invokeMethod(item("view"), "scrolled", Q_RETURN_ARG(QVariant, place));
    return place.toReal();
}
