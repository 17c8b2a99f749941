#pragma once

#include "AuthoringScreen.h"

#include "ProgramLink.h"
#include "QmlTypes.h"
#include "quick/ItemAccessible.h"
#include "quick/ModalGuard.h"
#include "support/FileBytes.h"
#include "support/WarningGuard.h"
#include "Tutorial/translation/TranslationSource.h"

#include <cstdlib>

/// A test of the real application window of the authoring mode, in the test's own process, with the
/// hands and eyes of a writer. The window is linked to a host and has a project in a folder of its
/// own. The singletons are the real ones: a process has one of these.
class AuthoringTest : public QObject, protected AuthoringScreen
{
    Q_OBJECT

public:
    /// Runs a test. At its end the window is closed, which has to end the process; its result is the
    /// test's. A window that asks about changes gets the answer No.
    template <typename Test>
    static int run(int argc, char *argv[])
    {
        QByteArray suffix = "-screens-" + QByteArray::number(QCoreApplication::applicationPid());
        char *arguments[] = { argv[0], suffix.data(), nullptr };
        int count = 2;
        qputenv("XDG_CONFIG_HOME", mFolder.path().toLocal8Bit());
        qputenv("XDG_DATA_HOME", mFolder.path().toLocal8Bit());
        QApplication application(count, arguments);
        QCoreApplication::setApplicationName(QStringLiteral("Trelvane"));
        QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
        QLocale::setDefault(QLocale::c());
        const ModalGuard modalGuard;
        applicationObject = &application;
        // The window's own end of the process must not pass for a passed test, nor leave what the test has made.
        closeLogFileHook = [] {
            mFolder.remove();
            QLocalServer::removeServer(HostMessages::serverName(QCoreApplication::arguments().value(1)));
            std::_Exit(sEndCode);
        };
        registerQmlTypes();
        Test test;
        const int result = QTest::qExec(&test, argc, argv);
        if (result != 0)
            return result;
        constexpr int kStillThere = 99;
        sEndCode = 0;
        test.mWindow->close();
        if (saveQuestion())
            answerSaveQuestion("no");
        QTest::qWait(5000);
        return kStillThere;
    }

protected Q_SLOTS:
    void initTestCase()
    {
        mWarnings.begin();
        // What the history says of itself at its start.
        mWarnings.expect(QStringLiteral("UndoRedo::UndoRedo"));
        mWarnings.expect(QStringLiteral("translation file not found"), 2);
        QCOMPARE(mHost.listen(QCoreApplication::arguments().value(1)), QString());
        QDir(mFolder.path()).mkdir(QStringLiteral("project"));
        QDir::setCurrent(mFolder.filePath(QStringLiteral("project")));
        connect(&mHost, &ProgramLink::received, this, [this](const QStringList &fields) {
            if (fields.first() == HostMessages::ToHost::kStart)
                mStarts += fields.last();
        });
        ItemAccessible::install(mEngine);
        mEngine.load(QUrl(QStringLiteral("qrc:/qml/main.qml")));
        mWindow = qobject_cast<QQuickWindow *>(mEngine.rootObjects().value(0));
        QVERIFY(mWindow);
        mWindow->resize(900, 780);
        QVERIFY(activate());
        managerInstance->unload();
        mWarnings.end();
    }
    void init()
    {
        mStarts.clear();
        mWarnings.begin();
        QVERIFY(activate());
    }
    void cleanup()
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

protected:
    // File names in the project.
    static inline const QString kTutorial = QStringLiteral("tutorial-win/qml/Tutorial/Sample.js");
    static inline const QString kJapanese = QStringLiteral("tutorial-win/translations/ja_JP.ts");
    static inline const QString kEnglish = QStringLiteral("tutorial-win/translations/en_US.ts");
    static inline const QString kShape = QStringLiteral("1 2[3 4[5 6] 7] 8[] 9");

    /// Loads a tutorial of that shape (see Shape.h).
    void load(const QString &shape)
    {
        const QString fields = QStringLiteral(",\"x\":10,\"y\":20,\"windowKey\":\"MainWindow\",\"condition\":\"click\","
                                              "\"hint\":qsTr(\"#\\1\"),\"icon\":\"eye\",\"showArrow\":true");
        for (const QString &name : { kJapanese, kEnglish })
            writeAll(name, TranslationSource::emptyDocument(QFileInfo(name).baseName()).toByteArray());
        writeAll(kTutorial, "var scenario = " + Shape::scenario(shape, fields).toUtf8() + ';');
        QCOMPARE(managerInstance->loadTutorial(QFileInfo(kTutorial).absoluteFilePath()), QString());
        QVERIFY(activate());
        // The screen goes to the first item by itself.
        QVERIFY(QTest::qWaitFor([&] { return (currentId() >= 0) != shape.isEmpty(); }));
        settle();
    }
    static QString longShape(int count)
    {
        QStringList ids;
        for (int id = 1; id <= count; ++id)
            ids.append(QString::number(id));
        return ids.join(QLatin1Char(' '));
    }

    ProgramLink mHost;
    QStringList mStarts; // the ids from which the host was to start
    WarningGuard mWarnings;

private:
    static inline QTemporaryDir mFolder;
    static inline int sEndCode = 1;
    QQmlApplicationEngine mEngine;
};

/// Like QTEST_MAIN.
#define AUTHORING_TEST_MAIN(Test)                    \
    int main(int argc, char *argv[])                 \
    {                                                \
        return AuthoringTest::run<Test>(argc, argv); \
    }
