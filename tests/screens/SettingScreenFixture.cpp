#include "SettingScreenFixture.h"

#include "QmlTypes.h"

#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TranslationSource.h"

#include <QApplication>
#include <QFile>
#include <QPushButton>

namespace
{
const QString kSuffix = QStringLiteral("-setting-screen-%1");
const QString kScenario = QStringLiteral("tutorial-win/qml/Tutorial/TutorialSideViewStep0.js");
const QString kTranslation = QStringLiteral("tutorial-win/translations/%1.ts");
const QString kContext = QStringLiteral("TutorialSideViewStep0");

QString item(int id, const QString &name, const QString &condition)
{
    return QStringLiteral("{\"id\":%1,\"name\":\"%2\",\"folder\":false,\"x\":10,\"y\":20,\"windowKey\":\"MainWindow\","
                          "\"condition\":\"%3\",\"hint\":qsTr(\"#%1\"),\"icon\":\"eye\",\"jump\":-1,\"jumpNo\":-1,"
                          "\"command\":\"\",\"showArrow\":true,\"prohibited\":false}")
        .arg(QString::number(id), name, condition);
}

void writeFile(const QString &path, const QString &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
}
} // namespace

QString SettingScreenFixture::savedHint(const QString &locale, int id)
{
    QFile file(kTranslation.arg(locale));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return QStringLiteral("no document");
    return TranslationSource::readMessages(document).value(kContext).value(QStringLiteral("#%1").arg(id));
}

void SettingScreenFixture::init()
{
    mFolder.reset(new QTemporaryDir);
    QDir::setCurrent(mFolder->path());
    QDir().mkpath(QStringLiteral("tutorial-win/qml/Tutorial"));
    QDir().mkpath(QStringLiteral("tutorial-win/translations"));
    const QStringList items = { item(2, QStringLiteral("first"), QStringLiteral("click")),
                                item(3, QStringLiteral("second"), QString()) };
    writeFile(
        kScenario,
        QStringLiteral("var scenario = [\n{\"id\":1,\"name\":\"folder\",\"folder\":true,\"children\":[%1]},\n%2\n];")
            .arg(items.join(QLatin1Char(',')), item(4, QStringLiteral("third"), QStringLiteral("yesNo"))));
    for (const QString &locale : { QStringLiteral("ja_JP"), QStringLiteral("en_US") }) {
        QDomDocument document = TranslationSource::emptyDocument(locale);
        TranslationSource::writeMessages(document, kContext,
                                         { { QStringLiteral("#2"), locale + QStringLiteral(" 2") },
                                           { QStringLiteral("#3"), locale + QStringLiteral(" 3") },
                                           { QStringLiteral("#4"), locale + QStringLiteral(" 4") } });
        writeFile(kTranslation.arg(locale), QString::fromUtf8(document.toByteArray(4)));
    }
    if (!mWindow) {
        mEngine.load(QUrl(QStringLiteral("qrc:/qml/main.qml")));
        mWindow = qobject_cast<QQuickWindow *>(mEngine.rootObjects().value(0));
        QVERIFY(mWindow);
        QVERIFY(screen());
    } else {
        managerInstance->setLocale(QStringLiteral("ja_JP"));
        QMetaObject::invokeMethod(mWindow, "reloadTutorial");
    }
    // The offscreen platform has a small screen.
    mWindow->resize(966, 788);
    mWindow->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(mWindow));
    select(2);
}

void SettingScreenFixture::cleanup()
{
    if (QMessageBox *box = openBox())
        box->close();
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (window->objectName() == QLatin1String("SaveChangeDialog"))
            window->close();
    }
    QDir::setCurrent(QDir::rootPath());
}

void SettingScreenFixture::select(int id)
{
    tree()->setProperty("focusId", id);
    QMetaObject::invokeMethod(tree(), "focusOn");
    QTRY_COMPARE(currentId(), id);
    // What follows the selection in short timers must not take the focus from what is done next.
    QTest::qWait(250);
}

void SettingScreenFixture::click(QQuickItem *target, QQuickWindow *window, bool twice)
{
    QVERIFY(target);
    const QPoint point = target->mapToScene(QPointF(target->width() / 2, target->height() / 2)).toPoint();
    if (!window)
        window = target->window();
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, point);
    if (twice)
        QTest::mouseDClick(window, Qt::LeftButton, Qt::NoModifier, point);
}

void SettingScreenFixture::press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(mWindow, Qt::Key(key), modifiers);
}

void SettingScreenFixture::type(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(mWindow, character.toLatin1());
}

void SettingScreenFixture::typeInto(const char *name, const QString &text)
{
    click(find(name));
    press(Qt::Key_A, Qt::ControlModifier);
    type(text);
}

QMessageBox *SettingScreenFixture::openBox() const
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *box = qobject_cast<QMessageBox *>(widget);
        if (box && box->isVisible())
            return box;
    }
    return nullptr;
}

void SettingScreenFixture::answer(QMessageBox::StandardButton button)
{
    QTRY_VERIFY(openBox());
    QTest::mouseClick(openBox()->button(button), Qt::LeftButton);
    QTRY_VERIFY(!openBox());
}

int SettingScreenFixture::run(int argc, char *argv[], QObject *(*makeTest)(HostLink *host))
{
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    QByteArray suffix = kSuffix.arg(qint64(qHash(home.path()))).toLocal8Bit();
    char *arguments[] = { argv[0], suffix.data(), nullptr };
    int count = 2;
    QApplication application(count, arguments);
    QCoreApplication::setApplicationName(QStringLiteral("Trelvane"));
    QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
    applicationObject = &application;
    registerQmlTypes();
    HostLink host;
    const QString error = host.listen(QString::fromLocal8Bit(suffix));
    if (!error.isEmpty())
        qFatal("%s", qPrintable(error));
    const QScopedPointer<QObject> test(makeTest(&host));
    return QTest::qExec(test.data(), argc, argv);
}
