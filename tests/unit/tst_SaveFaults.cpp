#include "support/FaultyDisk.h"
#include "support/FileBytes.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <QtTest>

#include <cerrno>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
constexpr int kSaved = 2; // the code of a process

// In the order of the save.
const QStringList kFiles = { QStringLiteral("tutorial-win/translations/ja_JP.ts"),
                             QStringLiteral("tutorial-win/translations/en_US.ts"),
                             QStringLiteral("tutorial-win/qml/Tutorial/Sample.js") };

void writeSource(const QString &file, const QByteArray &hint)
{
    writeAll(file,
             "<TS><context><name>Sample</name><message><source>#1</source><translation>" + hint
                 + "</translation></message></context></TS>");
}

QList<QByteArray> contents()
{
    return { readAll(kFiles.at(0)), readAll(kFiles.at(1)), readAll(kFiles.at(2)) };
}

int fileCount()
{
    int count = 0;
    QDirIterator entries(QStringLiteral("."), QDir::Files | QDir::System | QDir::Hidden, QDirIterator::Subdirectories);
    for (; entries.hasNext(); entries.next())
        ++count;
    return count;
}
} // namespace

/// A save through the real manager while one call of the system after the other fails.
class tst_SaveFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savesAllOrTells_data()
    {
        QTest::addColumn<bool>("inPlace");
        for (const char *row :
             { "replaced", "made with their folders", "over links", "with what others wrote", "in place" })
            QTest::newRow(row) << (row == QByteArray("in place"));
    }
    void savesAllOrTells()
    {
        QFETCH(bool, inPlace);
        const QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path()));
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        prepare(QTest::currentDataTag());
        QCOMPARE(mManager->save(), QString());
        const QList<QByteArray> wanted = contents();
        const int wantedCount = fileCount();
        QVERIFY(wanted.at(0).contains(">new<") && wanted.at(2).contains("ccc"));

        QStringList problems;
        for (const int fault : { ENOSPC, EIO, EACCES, int(FaultyDisk::Short), int(FaultyDisk::End) }) {
            const bool ends = fault == FaultyDisk::End;
            bool isFaulty = true;
            for (int call = 1; isFaulty; ++call) {
                const auto check = [&](bool holds, const char *what) {
                    if (!holds)
                        problems +=
                            QStringLiteral("fault %1 at call %2: %3").arg(fault).arg(call).arg(QLatin1String(what));
                };
                prepare(QTest::currentDataTag());
                const QList<QByteArray> before = contents();
                const pid_t child = ends ? fork() : 0;
                if (child == 0) {
                    FaultyDisk::begin(call, fault, !inPlace);
                    const QString error = mManager->save();
                    isFaulty = FaultyDisk::end() >= call;
                    if (ends)
                        _exit(kSaved);
                    check(error.isEmpty() ? FaultyDisk::isOnDisk() && contents() == wanted : isFaulty, "told");
                    check(mManager->isModified() != error.isEmpty(), "modified");
                    check(!mManager->isChangedOnDisk(), "taken for another's change");
                    check(fileCount() <= wantedCount, "something is left");
                } else {
                    int status = 0;
                    waitpid(child, &status, 0);
                    isFaulty = WEXITSTATUS(status) != kSaved;
                    check(!isFaulty || status == 0, "named too early");
                }
                const QList<QByteArray> after = contents();
                // What ends while it writes in place is lost.
                for (int i = 0; i < kFiles.size() && !(inPlace && ends); ++i)
                    check(after.at(i) == wanted.at(i) || after.at(i) == before.at(i), qPrintable(kFiles.at(i)));
                check(after == wanted || after.at(2) != wanted.at(2), "a scenario without its hints");
                check(mManager->save().isEmpty() && contents() == wanted && !mManager->isModified(), "the next save");
            }
        }
        QCOMPARE(problems.join(QLatin1Char('\n')), QString());
    }

private:
    void prepare(const QByteArray &row) const
    {
        QDir(QStringLiteral("tutorial-win")).removeRecursively();
        for (const QString &file : kFiles) {
            QVERIFY(QDir().mkpath(QFileInfo(file).path()));
            if (row == "over links")
                QVERIFY(QFile::link(QDir(QFileInfo(file).fileName()).absolutePath(), file));
        }
        writeSource(kFiles.at(0), "old");
        writeSource(kFiles.at(1), "one");
        writeAll(kFiles.at(2), "[{\"id\":1,\"name\":\"a\",\"hint\":qsTr(\"#1\")}]");
        QCOMPARE(mManager->loadTutorial(kFiles.at(2)), QString());
        if (row == "made with their folders") {
            QVERIFY(QDir(QStringLiteral("tutorial-win")).removeRecursively());
            QCOMPARE(mManager->loadTutorial(kFiles.at(2)), QString());
        } else if (row == "with what others wrote") {
            writeSource(kFiles.at(1), "theirs");
        }
        TutorialItemData *item = TutorialEditor::Manager::instance()->mData.getData(1);
        item->mCommand = QString(9000, QLatin1Char('c'));
        item->mHint = QStringLiteral("new");
        mManager->setModified(true);
    }

    const std::unique_ptr<QObject> mHistory{ UndoRedo::create(nullptr, nullptr) };
    const std::unique_ptr<TutorialManager> mManager = std::make_unique<TutorialManager>(nullptr, nullptr);
};

QTEST_MAIN(tst_SaveFaults)
#include "tst_SaveFaults.moc"
