#include "AuthoringTest.h"

#include "QmlTypes.h"
#include "quick/ModalGuard.h"
#include "support/FileBytes.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/translation/TranslationSource.h"
#include "Tutorial/TutorialManager.h"

#include <QApplication>
#include <QPushButton>
#include <QQmlExpression>
#include <QRegularExpression>
#include <QtQml>

#include <cstdlib>

namespace
{
int endCode = 1;

QPoint centre(const QQuickItem *item)
{
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
}

QList<QQuickItem *> visibleItems(QQuickItem *item)
{
    if (!item->isVisible())
        return {};
    QList<QQuickItem *> items = { item };
    for (QQuickItem *child : item->childItems())
        items += visibleItems(child);
    return items;
}

} // namespace

std::unique_ptr<QApplication> AuthoringTest::makeApplication(char *program)
{
    static QByteArray suffix = "-screens-" + QByteArray::number(QCoreApplication::applicationPid());
    static int count = 2;
    static char *arguments[] = { program, suffix.data(), nullptr };
    qputenv("XDG_CONFIG_HOME", mFolder.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", mFolder.path().toLocal8Bit());
    auto application = std::make_unique<QApplication>(count, arguments);
    QCoreApplication::setApplicationName(QStringLiteral("Trelvane"));
    QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
    QLocale::setDefault(QLocale::c());
    new ModalGuard(application.get());
    applicationObject = application.get();
    // The window's own end of the process must not pass for a passed test, nor leave what the test has made.
    closeLogFileHook = [] {
        mFolder.remove();
        QLocalServer::removeServer(HostMessages::serverName(QCoreApplication::arguments().value(1)));
        std::_Exit(endCode);
    };
    registerQmlTypes();
    return application;
}

int AuthoringTest::endByClosing()
{
    constexpr int kStillThere = 99;
    endCode = 0;
    mWindow->close();
    if (saveQuestion())
        answerSaveQuestion("no");
    QTest::qWait(5000);
    return kStillThere;
}

void AuthoringTest::initTestCase()
{
    mWarnings.begin();
    // What the history says of itself at its start.
    mWarnings.expect(QStringLiteral("UndoRedo::UndoRedo"));
    mWarnings.expect(QStringLiteral("translation file not found"), 2);
    QCOMPARE(mHost.listen(QCoreApplication::arguments().value(1)), QString());
    QDir(mFolder.path()).mkdir(QStringLiteral("project"));
    QDir::setCurrent(mFolder.filePath(QStringLiteral("project")));
    for (const QString &name : { kTutorial, kJapanese })
        QVERIFY(QDir().mkpath(QFileInfo(name).path()));
    connect(&mHost, &ProgramLink::received, this, [this](const QStringList &fields) {
        if (fields.first() == HostMessages::ToHost::kStart)
            mStarts += fields.last();
    });
    mEngine.load(QUrl(QStringLiteral("qrc:/qml/main.qml")));
    mWindow = qobject_cast<QQuickWindow *>(mEngine.rootObjects().value(0));
    QVERIFY(mWindow);
    mWindow->resize(900, 780);
    QVERIFY(activate());
    managerInstance->unload();
    mWarnings.end();
}

void AuthoringTest::cleanup()
{
    while (QWidget *widget = dialog())
        widget->close();
    if (QQuickWindow *question = saveQuestion())
        question->close();
    evaluate(QStringLiteral("commitEditing()"));
    managerInstance->setModified(false);
    managerInstance->unload();
    mWarnings.end();
}

void AuthoringTest::load(const QString &shape)
{
    QString text = shape;
    text.replace(QLatin1Char(' '), QLatin1Char(',')).replace(QLatin1Char(']'), QLatin1String("]}"));
    text.replace(
        QRegularExpression(QStringLiteral("(\\d+)(?![\\d[])")),
        QStringLiteral("{\"id\":\\1,\"name\":\"name\\1\",\"x\":10,\"y\":20,\"windowKey\":\"MainWindow\","
                       "\"condition\":\"click\",\"hint\":qsTr(\"#\\1\"),\"icon\":\"eye\",\"showArrow\":true}"));
    text.replace(QRegularExpression(QStringLiteral("(\\d+)\\[")),
                 QStringLiteral("{\"id\":\\1,\"name\":\"name\\1\",\"folder\":true,\"children\":["));
    for (const QString &name : { kJapanese, kEnglish })
        writeAll(name, TranslationSource::emptyDocument(QFileInfo(name).baseName()).toByteArray());
    writeAll(kTutorial, "var scenario = [" + text.toUtf8() + "];");
    QCOMPARE(managerInstance->loadTutorial(QFileInfo(kTutorial).absoluteFilePath()), QString());
    QVERIFY(activate());
    // The screen goes to the first item by itself.
    QVERIFY(QTest::qWaitFor([&] { return (currentId() >= 0) != shape.isEmpty(); }));
    settle();
}

QString AuthoringTest::longShape(int count)
{
    QStringList ids;
    for (int id = 1; id <= count; ++id)
        ids.append(QString::number(id));
    return ids.join(QLatin1Char(' '));
}

QVariant AuthoringTest::evaluate(const QString &script) const
{
    QQmlExpression expression(qmlContext(mWindow), mWindow, script);
    const QVariant result = expression.evaluate();
    if (expression.hasError())
        qWarning().noquote() << expression.error().toString();
    return result;
}

QString AuthoringTest::selected() const
{
    QStringList ids;
    for (const QVariant &id : screen()->property("selectedIdList").toList())
        ids.append(id.toString());
    return ids.join(QLatin1Char(' '));
}

QQuickItem *AuthoringTest::row(int id) const
{
    QVariant delegate;
    QMetaObject::invokeMethod(tree(), "getItemById", Q_RETURN_ARG(QVariant, delegate), Q_ARG(QVariant, id));
    return delegate.value<QQuickItem *>();
}

QStringList AuthoringTest::shownRows() const
{
    constexpr int kHeader = 24;
    const auto *viewport = item("view")->property("viewport").value<QQuickItem *>();
    QMap<int, QString> rows;
    for (const QQuickItem *delegate : visibleItems(tree())) {
        if (!delegate->property("rowId").isValid())
            continue;
        const QPointF place = delegate->mapToItem(viewport, QPointF());
        if (place.y() + delegate->height() <= kHeader || place.y() >= viewport->height())
            continue;
        QString text = QString((int(place.x()) - 20) / 20, QLatin1Char(' ')) + delegate->property("rowId").toString();
        for (const QQuickItem *part : delegate->childItems().value(0)->childItems()) {
            if (part->inherits("QQuickText") && part->isVisible())
                text += QLatin1Char(' ') + part->property("text").toString();
            else if (part->property("source").toString().contains(QLatin1String("folder")))
                text += QLatin1Char('/');
        }
        // Two at the same place are seen.
        rows[qRound(place.y())] += text;
    }
    return rows.values();
}

QString AuthoringTest::shownIds() const
{
    return shownRows()
        .replaceInStrings(QRegularExpression(QStringLiteral("^ *(-?\\d+).*")), QStringLiteral("\\1"))
        .join(QLatin1Char(' '));
}

qreal AuthoringTest::scrolled() const
{
    QVariant place;
    QMetaObject::invokeMethod(item("view"), "scrolled", Q_RETURN_ARG(QVariant, place));
    return place.toReal();
}

QQuickWindow *AuthoringTest::visibleWindow(const char *objectName)
{
    for (QWindow *window : QGuiApplication::allWindows()) {
        if (window->objectName() == QLatin1String(objectName) && window->isVisible())
            return qobject_cast<QQuickWindow *>(window);
    }
    return nullptr;
}

QQuickItem *AuthoringTest::find(QQuickItem *item, const QString &nameOrText)
{
    for (QQuickItem *each : visibleItems(item)) {
        if (each->objectName() == nameOrText || each->property("text").toString() == nameOrText)
            return each;
    }
    return nullptr;
}

bool AuthoringTest::activate() const
{
    mWindow->requestActivate();
    return QTest::qWaitForWindowActive(mWindow)
        && QTest::qWaitFor([this] { return QGuiApplication::focusWindow() == mWindow; });
}

void AuthoringTest::settle() const
{
    const auto rests = [this] {
        for (const QObject *each : tree()->findChildren<QObject *>()) {
            if (each->inherits("QQmlTimer") && each->property("running").toBool())
                return false;
        }
        return true;
    };
    QVERIFY(QTest::qWaitFor(rests));
}

void AuthoringTest::select(int id) const
{
    Q_EMIT managerInstance->actionIdChanged(id);
    QVERIFY(QTest::qWaitFor([&] { return currentId() == id; }));
    settle();
}

void AuthoringTest::selectInTree(int id) const
{
    tree()->setProperty("autoActiveFocusOneShot", true);
    select(id);
}

bool AuthoringTest::open(int folderId) const
{
    if (row(folderId))
        click(folderId);
    else
        selectInTree(folderId);
    press(Qt::Key_Plus);
    // Its first item has the next id.
    return QTest::qWaitFor([&] { return row(folderId + 1) != nullptr; });
}

QPoint AuthoringTest::at(int id, int x, int dy) const
{
    const QQuickItem *found = nullptr;
    if (!QTest::qWaitFor([&] { return (found = row(id)) != nullptr; }))
        qFatal("No row of the id %d", id);
    return QPoint(x, qRound(found->mapToScene(QPointF(0, found->height() / 2)).y()) + dy);
}

void AuthoringTest::click(QQuickItem *target) const
{
    QVERIFY(target);
    QTest::mouseMove(target->window(), centre(target));
    QTest::mouseClick(target->window(), Qt::LeftButton, Qt::NoModifier, centre(target));
}

void AuthoringTest::click(int id, Qt::KeyboardModifiers modifiers) const
{
    QTest::mouseClick(mWindow, Qt::LeftButton, modifiers, at(id));
}

void AuthoringTest::press(const QKeySequence &keys) const
{
    const int code = keys[0];
    QTest::keyClick(mWindow, Qt::Key(code & ~Qt::KeyboardModifierMask),
                    Qt::KeyboardModifiers(code & Qt::KeyboardModifierMask));
}

void AuthoringTest::type(const QString &text) const
{
    for (const QChar character : text)
        QTest::keyClick(mWindow, character.toLatin1());
}

void AuthoringTest::typeInto(const char *field, const QString &text) const
{
    click(item(field));
    press(QKeySequence::SelectAll);
    type(text);
}

void AuthoringTest::rename(int id, const QString &name) const
{
    selectInTree(id);
    press(Qt::Key_F2);
    QVERIFY(renameField(id)->isVisible());
    type(name);
    press(Qt::Key_Return);
}

void AuthoringTest::drag(int id, const QPoint &target)
{
    mMouse = at(id);
    QTest::mousePress(mWindow, Qt::LeftButton, Qt::NoModifier, mMouse);
    moveTo(target);
}

void AuthoringTest::moveTo(const QPoint &target)
{
    constexpr int kSteps = 12;
    const QPoint start = mMouse;
    for (int i = 1; i <= kSteps; ++i)
        QTest::mouseMove(mWindow, start + (target - start) * i / kSteps);
    mMouse = target;
}

QList<QObject *> AuthoringTest::menus() const
{
    QList<QObject *> menus;
    for (const QVariant &menu : evaluate(QStringLiteral("Array.prototype.slice.call(menuBar.menus)")).toList())
        menus.append(menu.value<QObject *>());
    menus.append(tree()->property("contextMenu").value<QObject *>());
    return menus;
}

void AuthoringTest::chooseFrom(QObject *menu, const char *entry) const
{
    QQmlListReference entries(menu, "items");
    int index = 0;
    while (index < entries.count() && entries.at(index)->property("text").toString() != QLatin1String(entry))
        ++index;
    QVERIFY(index < entries.count());
    const auto window = [&]() -> QWindow * {
        const auto *shown = entries.at(index)->property("__visualItem").value<QQuickItem *>();
        return menu->property("__popupVisible").toBool() && shown ? shown->window() : nullptr;
    };
    QTRY_VERIFY(window());
    QVERIFY(QTest::qWaitForWindowExposed(window()));
    if (entries.at(index)->property("enabled").toBool()) {
        while (menu->property("__currentIndex").toInt() < index)
            QTest::keyClick(window(), Qt::Key_Down);
        QTest::keyPress(window(), Qt::Key_Return);
    } else {
        QTest::keyPress(window(), Qt::Key_Escape);
    }
    QTRY_VERIFY(!menu->property("__popupVisible").toBool());
}

void AuthoringTest::choose(const char *title, const char *entry) const
{
    for (QObject *menu : menus()) {
        if (menu->property("title").toString() != QLatin1String(title))
            continue;
        press(Qt::ALT + QString::fromLatin1(title).section(QLatin1Char('&'), 1).at(0).toUpper().unicode());
        chooseFrom(menu, entry);
    }
}

void AuthoringTest::chooseAt(const QPoint &place, const char *entry) const
{
    QTest::mouseClick(mWindow, Qt::RightButton, Qt::NoModifier, place);
    chooseFrom(menus().last(), entry);
}

QString AuthoringTest::answer(QMessageBox::StandardButton button)
{
    // A box that goes before the window manager has given it the focus leaves the focus nowhere.
    if (!QTest::qWaitFor([] { return messageBox() != nullptr; }) || !QTest::qWaitForWindowActive(messageBox()))
        return QStringLiteral("no message box");
    const QString text = messageBox()->text();
    if (QAbstractButton *shown = messageBox()->button(button))
        QTest::mouseClick(shown, Qt::LeftButton);
    return QTest::qWaitFor([] { return messageBox() == nullptr; }) ? text : QStringLiteral("still open");
}

bool AuthoringTest::answerSaveQuestion(const char *button)
{
    if (!QTest::qWaitFor([] { return saveQuestion() != nullptr; }) || !QTest::qWaitForWindowExposed(saveQuestion()))
        return false;
    QQuickItem *found = find(saveQuestion()->contentItem(), QLatin1String(button));
    if (found)
        QTest::mouseClick(saveQuestion(), Qt::LeftButton, Qt::NoModifier, centre(found));
    return QTest::qWaitFor([] { return saveQuestion() == nullptr; });
}
