// KILL_COUNT=N ends so many sessions, and KILL_SEED=N begins with that seed.

#include "RecoverySession.h"

#include "support/WarningGuard.h"

class tst_Recovery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The child of a test.
        if (qEnvironmentVariableIsSet("KILLED_SEED")) {
            // What it leaves goes with the folder of the test.
            qputenv("TMPDIR", QFile::encodeName(QDir::currentPath()));
            std::_Exit(runKilledSession(qgetenv("KILLED_SEED").toUInt()));
        }
    }
    void init()
    {
        mWarnings.begin();
        mFolder = std::make_unique<QTemporaryDir>();
        QDir::setCurrent(mFolder->path());
        qputenv("XDG_DATA_HOME", mFolder->filePath(QStringLiteral("data")).toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", mFolder->filePath(QStringLiteral("config")).toLocal8Bit());
        // Windows has it at a place of its own.
        QVERIFY(!root().exists() || root().removeRecursively());
        RecoverySession::layOut();
    }
    void cleanup()
    {
        QDir::setCurrent(QDir::rootPath());
        mWarnings.end();
    }
    void differencesAreTold();
    void staleTranslationsAreTold();
    void copyGoesWithTheChanges();
    void copyIsOfItsMoment();
#ifndef Q_OS_WIN
    // Nobody can remove what is locked there.
    void copyOutlivesFaults();
#endif
    void fileOfTheCopyIsLookedAt();
    void damagedCopyIsNotOffered();
    void twoProgramsKeepTheirOwn();
    void killedSessionsComeBack();

private:
    static QDir root()
    {
        return QDir(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)
                    + QLatin1String("/recovery"));
    }
    static QStringList folders()
    {
        return root().entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    }
    /// A file in the only folder.
    static QString copyFile(const char *name = "copy.json")
    {
        return root().filePath(folders().value(0, QStringLiteral("none")) + QLatin1Char('/') + QLatin1String(name));
    }
    std::unique_ptr<RecoverySession> session()
    {
        mWarnings.expect(QStringLiteral("UndoRedo::UndoRedo"));
        return std::make_unique<RecoverySession>();
    }
    /// The next start of the program.
    std::unique_ptr<RecoverySession> begin()
    {
        auto next = session();
        next->begin();
        return next;
    }
    void startChild(QProcess &child, unsigned seed)
    {
        qputenv("KILLED_SEED", QByteArray::number(seed));
        child.start(QCoreApplication::applicationFilePath(), QStringList());
        qunsetenv("KILLED_SEED");
        QVERIFY(child.waitForStarted());
    }
    /// What a session has told, and what is found of it after its end.
    void kill(unsigned seed)
    {
        QProcess child;
        startChild(child, seed);
        QVERIFY(child.waitForFinished(120000));
        QCOMPARE(child.exitStatus(), QProcess::CrashExit);
        QList<QByteArray> pictures;
        for (const QByteArray &line : child.readAllStandardOutput().split('\n')) {
            if (line.startsWith("state "))
                pictures.append(line.mid(6).trimmed());
        }
        if (pictures.isEmpty())
            return;

        for (const char *locale : { "ja_JP", "en_US" })
            QVERIFY(QDomDocument().setContent(readAll(RecoverySession::language(locale))));
        auto writer = session();
        QVERIFY(writer->manager().leftOut().isEmpty());
        QVERIFY(TutorialEditor::Manager::instance()->isLoaded());
        writer->begin();
        const bool offered = writer->recovery().isOffered();
        if (offered)
            QCOMPARE(writer->recovery().restore(), QString());
        const QByteArray found = writer->picture();
        const int index = pictures.lastIndexOf(found);
        QVERIFY2(index >= 0, "it is no state that the document had");
        // At the pace of the session, ten seconds of work.
        QVERIFY2(pictures.size() - index < 2000, "too much is lost");
        if (offered)
            QCOMPARE(writer->manager().save(), QString());
        writer.reset();
        QVERIFY(!QFile::exists(copyFile()));
        writer = begin();
        QVERIFY(!writer->recovery().isOffered());
        QCOMPARE(folders(), QStringList());
        QCOMPARE(writer->picture(), found);
    }

    WarningGuard mWarnings;
    std::unique_ptr<QTemporaryDir> mFolder;
};

void tst_Recovery::differencesAreTold()
{
    auto writer = begin();
    writer->edit([&] { writer->model().addFolder(-1); });
    writer->edit([&] { writer->model().addItem(7); });
    writer->edit([&] { writer->model().deleteIdList({ 2 }); });
    writer->edit([&] { writer->model().moveIdListBeforeIndex(writer->model().getModelIndexById(1), { 6 }); });
    writer->edit([&] { writer->model().moveIdListIntoIndex(writer->model().getModelIndexById(7), { 5 }); });
    writer->set(1, "x", 12);
    writer->set(1, "hint", QStringLiteral("こんにちは"));
    writer->set(3, "hint2", QStringLiteral("\"%1\""));
    const QByteArray before = writer->picture();
    // What is still in the field, and what no field would take.
    writer->recovery().setTyped(4, QStringLiteral("condition"), QStringLiteral("wait,3"));
    writer->recovery().setTyped(4, QStringLiteral("command"), QStringLiteral("/*"));
    writer->recovery().flush();
    QCOMPARE(writer->picture(), before);
    writer->set(4, "condition", QStringLiteral("wait,3"));
    const QByteArray after = writer->picture();
    writer.reset();

    writer = begin();
    QVERIFY(writer->recovery().isOffered());
    const QStringList lines = writer->recovery().differences();
    QCOMPARE(lines,
             QStringList({ QStringLiteral("Added: folder1 (#7)"), QStringLiteral("Added: item001 (#8)"),
                           QStringLiteral("Removed: name2 (#2)"), QStringLiteral("Moved: name6 (#6)"),
                           QStringLiteral("Changed: name1 (#1), x: -9999 -> 12"),
                           QStringLiteral("Changed: name1 (#1), hint (ja_JP): \"\" -> \"こんにちは\""),
                           QStringLiteral("Changed: name3 (#3), hint (en_US): \"#3\" -> \"\\\"%1\\\"\""),
                           QStringLiteral("Changed: name4 (#4), condition: \"\" -> \"wait,3\""),
                           QStringLiteral("Moved: name5 (#5)") }));
    QCOMPARE(writer->recovery().restore(), QString());
    QCOMPARE(writer->picture(), after);
    QVERIFY(writer->manager().isModified() && !writer->history().canUndo() && !writer->recovery().isOffered());
    // It has no step back to what is saved.
    writer->set(1, "x", 13);
    writer->history().undo();
    QVERIFY(writer->manager().isModified());
    QCOMPARE(writer->manager().save(), QString());
    QVERIFY(!writer->manager().isModified());
    writer.reset();
    QCOMPARE(folders(), QStringList());
    writer = begin();
    QCOMPARE(writer->picture(), after);
}

void tst_Recovery::staleTranslationsAreTold()
{
    auto writer = begin();
    for (const int id : { 1, 2 }) {
        writer->set(id, "hint", QStringLiteral("first"));
        writer->set(id, "hint2", QStringLiteral("second"));
    }
    QCOMPARE(writer->manager().save(), QString());
    writer->set(1, "hint", QStringLiteral("other"));
    QCOMPARE(writer->manager().save(), QString());
    // No text is unsaved.
    writer->manager().confirmTranslation(1);
    writer->recovery().flush();
    writer.reset();
    writer = begin();
    QCOMPARE(writer->recovery().differences(), QStringList(QStringLiteral("Translation stands: name1 (#1)")));
    QCOMPARE(writer->recovery().restore(), QString());
    writer->set(2, "hint", QStringLiteral("other"));
    writer->recovery().flush();
    writer.reset();
    // What is known of a translation is not true of the one that others have put there.
    const QString english = RecoverySession::language("en_US");
    QByteArray theirs = readAll(english);
    QCOMPARE(theirs.count("<translation>second"), 1);
    writeAll(english, theirs.replace("<translation>second", "<translation>theirs"));
    writer = begin();
    QCOMPARE(writer->recovery().differences(),
             QStringList({ QStringLiteral("Translation stands: name1 (#1)"),
                           QStringLiteral("Changed: name2 (#2), hint (ja_JP): \"first\" -> \"other\"") }));
    writeAll(english, theirs.replace("<translation>theirs", "<translation>second"));
    QCOMPARE(writer->recovery().differences().value(1), QStringLiteral("Stale: name2 (#2)"));
    QCOMPARE(writer->recovery().restore(), QString());
    QCOMPARE(writer->manager().save(), QString());
    QCOMPARE(readAll(english).count("unfinished"), 1);
    writer.reset();
    QCOMPARE(folders(), QStringList());
}

void tst_Recovery::copyGoesWithTheChanges()
{
    auto writer = begin();
    const auto isKept = [&] {
        writer->recovery().flush();
        return QFile::exists(copyFile());
    };
    const QString command = QStringLiteral("command");
    const std::pair<std::function<void()>, bool> steps[] = {
        { [] {}, false },
        { [&] { writer->set(1, "x", 1); }, true },
        { [&] { writer->history().undo(); }, false },
        { [&] { writer->history().redo(); }, true },
        { [&] { writer->manager().save(); }, false },
        { [&] { writer->recovery().setTyped(1, command, QStringLiteral("a")); }, true },
        { [&] { writer->recovery().setTyped(1, command, QVariant()); }, false },
        { [&] { writer->set(1, "x", 2); }, true },
        { [&] { writer->recovery().forgetChanges(); }, false },
        { [&] { writer->set(1, "x", 3); }, true },
        { [&] { writer->manager().unload(); }, false },
    };
    for (const auto &step : steps) {
        step.first();
        QVERIFY2(isKept() == step.second, qPrintable(QString::number(&step - steps)));
    }
    // By itself, too.
    writer->manager().loadTutorial(RecoverySession::file());
    writer->set(1, "x", 4);
    QTRY_VERIFY(QFile::exists(copyFile()));
}

/// It is put together in another thread, while the writer goes on.
void tst_Recovery::copyIsOfItsMoment()
{
    auto writer = begin();
    const UnsavedWork work = writer->manager().unsavedWork({ { 4, QStringLiteral("condition"), QStringLiteral("a") } });
    const QByteArray bytes = work().toBytes();
    writer->edit([&] { writer->model().deleteIdList({ 2 }); });
    writer->set(1, "hint", QStringLiteral("later"));
    QCOMPARE(work().toBytes(), bytes);
    writer->manager().unload();
    writer.reset();
    QCOMPARE(work().toBytes(), bytes);
}

#ifndef Q_OS_WIN
void tst_Recovery::copyOutlivesFaults()
{
    auto writer = begin();
    const auto change = [&](int x) {
        writer->set(1, "x", x);
        writer->recovery().flush();
    };
    change(1);
    // Somebody clears the program's data away.
    QVERIFY(root().removeRecursively());
    change(2);
    QVERIFY(QFile::exists(copyFile()));
    // What can't be written for a while is written after it, without another change. How often it is tried is told by
    // warnings.
    mWarnings.end();
    QVERIFY(root().removeRecursively());
    writeAll(root().path(), QByteArray());
    change(3);
    QTRY_VERIFY(!writer->recovery().notice().isEmpty());
    QVERIFY(QFile::remove(root().path()));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(copyFile()) && writer->recovery().notice().isEmpty(), 60000);
    mWarnings.begin();
    const QByteArray picture = writer->picture();
    writer.reset();
    // A full disk leaves a new lock without contents.
    writeAll(copyFile("lock"), QByteArray());
    writer = begin();
    QCOMPARE(writer->recovery().restore(), QString());
    QCOMPARE(writer->picture(), picture);
}
#endif

void tst_Recovery::fileOfTheCopyIsLookedAt()
{
    auto writer = begin();
    writer->set(1, "hint", QStringLiteral("own"));
    writer->recovery().flush();
    writer.reset();
    // Someone else's words for another step, and another scenario.
    QDomDocument english = TranslationSource::emptyDocument(QStringLiteral("en_US"));
    TranslationSource::writeMessages(english, QStringLiteral("Sample"),
                                     { { QStringLiteral("#2"), QStringLiteral("theirs") } });
    writeAll(RecoverySession::language("en_US"), english.toByteArray());
    const QByteArray scenario = readAll(RecoverySession::file());
    writeAll(RecoverySession::file(), scenario + "\n");
    writer = begin();
    QCOMPARE(writer->recovery().offeredFile(),
             QDir::toNativeSeparators(QFileInfo(RecoverySession::file()).absoluteFilePath()));
    QCOMPARE(writer->recovery().offeredRemark(), QStringLiteral("The file was changed since then."));
    QCOMPARE(writer->recovery().differences().size(), 1);
    QVERIFY(QFile::remove(RecoverySession::file()));
    QCOMPARE(writer->recovery().offeredRemark(), QStringLiteral("The file is not there any more."));
    writer->recovery().postpone();
    QVERIFY(!writer->recovery().isOffered());
    writeAll(RecoverySession::file(), scenario + "\n");
    // At the next load it is asked again, but not at another tutorial's.
    writer->manager().loadTutorial(QStringLiteral("tutorial-win/qml/Tutorial/Other.js"));
    QVERIFY(!writer->recovery().isOffered());
    writer->manager().loadTutorial(RecoverySession::file());
    QVERIFY(writer->recovery().isOffered());
    QCOMPARE(writer->recovery().restore(), QString());
    QVERIFY(writer->manager().isChangedOnDisk());
    QCOMPARE(writer->manager().save(), QString());
    QVERIFY(readAll(RecoverySession::language("en_US")).contains("theirs"));
    QVERIFY(readAll(RecoverySession::language("ja_JP")).contains("own"));
    writer.reset();
    QCOMPARE(folders(), QStringList());
}

void tst_Recovery::damagedCopyIsNotOffered()
{
    auto writer = begin();
    writer->set(1, "x", 1);
    writer->recovery().flush();
    writer.reset();
    const QByteArray whole = readAll(copyFile());
    QByteArray changed = whole;
    changed[whole.size() / 2] = static_cast<char>(whole.at(whole.size() / 2) ^ 1);
    for (const QByteArray &damaged : { changed, whole.left(whole.size() / 2), QByteArray() }) {
        writeAll(copyFile(), damaged);
        // It is told once, and nothing of it is lost.
        for (const int told : { 1, 0 }) {
            writer = session();
            QSignalSpy failures(&writer->recovery(), &Recovery::failed);
            writer->begin();
            QVERIFY(!writer->recovery().isOffered());
            QCOMPARE(failures.size(), told);
            QVERIFY(
                !told
                || failures.first().first().toString().contains(QDir::toNativeSeparators(copyFile("damaged.json"))));
            writer.reset();
        }
        QVERIFY(QFile::remove(copyFile("damaged.json")));
    }
    writer = begin();
    QCOMPARE(folders(), QStringList());
}

void tst_Recovery::twoProgramsKeepTheirOwn()
{
    QProcess child;
    startChild(child, kNeverKilled);
    QTRY_VERIFY(QFile::exists(copyFile()));
    auto writer = begin();
    QVERIFY(!writer->recovery().isOffered());
    writer->set(1, "x", 77);
    writer->recovery().flush();
    QCOMPARE(folders().size(), 2);
    child.kill();
    QVERIFY(child.waitForFinished());
    writer->history().undo();
    writer->manager().reload();
    QVERIFY(writer->recovery().isOffered());
    writer->recovery().discard();
    QVERIFY(!writer->recovery().isOffered());
    writer.reset();
    QCOMPARE(folders(), QStringList());
}

void tst_Recovery::killedSessionsComeBack()
{
    const int count = qEnvironmentVariableIntValue("KILL_COUNT");
    const int first = qEnvironmentVariableIntValue("KILL_SEED");
    for (int seed = first; seed < first + (count ? count : 20); ++seed) {
        cleanup();
        init();
        kill(static_cast<unsigned>(seed));
        if (QTest::currentTestFailed()) {
            qWarning("seed %d in %s", seed, qPrintable(mFolder->path()));
            mFolder->setAutoRemove(false);
            return;
        }
    }
}

MANAGER_TEST_MAIN(tst_Recovery)
#include "tst_Recovery.moc"
