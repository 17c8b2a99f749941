#pragma once

#include "quick/TutorialItemListModel.h"
#include "support/FileBytes.h"
#include "support/ManagerFixture.h"
#include "support/Shape.h"
#include "Tutorial/recovery/Recovery.h"
#include "Tutorial/translation/TranslationSource.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <random>
#include <thread>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <csignal>
#endif

/// A writer at work on the tutorial of the current folder, in the real manager: what stands for the program in the
/// tests of the recovery. Its end is no end of a program that was asked to.
class RecoverySession
{
public:
    static QString file() { return QStringLiteral("tutorial-win/qml/Tutorial/Sample.js"); }
    static QString language(const char *locale)
    {
        return QStringLiteral("tutorial-win/translations/%1.ts").arg(QLatin1String(locale));
    }

    static void layOut()
    {
        writeAll(file(), "var scenario = " + Shape::scenario(QStringLiteral("1 2 3 4 5 6")).toUtf8() + ';');
        for (const char *locale : { "ja_JP", "en_US" })
            writeAll(language(locale), TranslationSource::emptyDocument(QLatin1String(locale)).toByteArray());
    }

    RecoverySession()
    {
        mManager.loadTutorial(file());
        mModel.refresh();
    }

    TutorialManager &manager() { return mManager; }
    UndoRedo &history() { return *mHistory; }
    TutorialItemListModel &model() { return mModel; }
    Recovery &recovery() { return *qobject_cast<Recovery *>(mManager.recovery()); }
    void begin() { recovery().begin(mHistory.get()); }

    void edit(const std::function<void()> &change)
    {
        mModel.refreshPartial();
        mHistory->beginSequence(QStringLiteral("edit"));
        change();
        mHistory->endSequence();
    }
    void set(int id, const char *field, const QVariant &value)
    {
        edit([&] { mModel.setValue(id, QLatin1String(field), value); });
    }

    /// All that is saved of the document.
    QByteArray picture()
    {
        QCryptographicHash hash(QCryptographicHash::Sha1);
        data().mRoot.visitAll([&](const TreeItem<TutorialItemData> &item) {
            const TutorialItemData *record = data().getData(item.mId);
            QString text = QStringLiteral("%1 %2 %3 ").arg(item.mId).arg(item.mFolder).arg(item.mChildren.size());
            if (record)
                text += item.mFolder ? record->mName : record->toJsonText(QString());
            hash.addData(text.toUtf8());
        });
        return hash.result().toHex();
    }

    void editAtRandom(std::mt19937 &random)
    {
        static const char *const fields[] = { "x", "hint", "hint2", "condition", "jump" };
        const QList<int> ids = data().getIdList();
        const int id = ids.value(static_cast<int>(random() % 1000) % (ids.size() + 1), -1);
        const unsigned verb = ids.size() > 300 ? 2 : random() % 11;
        if (verb < 2)
            verb ? mHistory->undo() : mHistory->redo();
        else if (verb == 2)
            edit([&] { mModel.deleteIdList({ id, id + 1 }); });
        else if (verb == 3)
            edit([&] { mModel.moveIdListBeforeIndex(mModel.getModelIndexById(id), ids.mid(0, 1)); });
        else if (id < 0 || verb < 6)
            edit([&] { verb == 4 ? mModel.addFolder(id) : mModel.addItem(id); });
        else
            set(id, fields[verb - 6], QString::number(random() % 1000));
    }

private:
    TreeDataTemplate<TutorialItemData> &data() { return TutorialEditor::Manager::instance()->mData; }

    std::unique_ptr<UndoRedo> mHistory{ static_cast<UndoRedo *>(UndoRedo::create(nullptr, nullptr)) };
    ManagerFixture::Manager mManager;
    TutorialItemListModel mModel;
};

/// The seed of a session that makes one edit and waits for somebody else to end it.
constexpr unsigned kNeverKilled = 999999;

/// Ends the process as somebody else would.
inline void killThisProcess()
{
#ifdef Q_OS_WIN
    ::TerminateProcess(::GetCurrentProcess(), 0xC0000005);
#else
    std::raise(SIGKILL);
#endif
}

/// The process that is killed: edits every 5 ms, tells on its output what the document then is, and saves now and then.
/// It ends itself at a random moment of its life, of a save, or of a copy that is brought up to date.
inline int runKilledSession(unsigned seed)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    std::mt19937 random(seed);
    const auto killWithin = [&random](unsigned microseconds) {
        const std::chrono::microseconds delay(random() % microseconds);
        std::thread([delay] {
            std::this_thread::sleep_for(delay);
            killThisProcess();
        }).detach();
    };
    enum { InLife, InSave, InCopy };
    const unsigned moment = seed % 3;
    RecoverySession session;
    const auto tell = [&session] {
        std::printf("state %s\n", session.picture().constData());
        std::fflush(stdout);
    };
    session.begin();
    if (seed == kNeverKilled) {
        session.set(1, "x", 5);
        return QCoreApplication::exec();
    }
    tell();
    unsigned life = 20 + random() % 200;
    if (moment == InLife)
        killWithin(2000000);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        session.editAtRandom(random);
        tell();
        const bool last = --life == 0 && moment != InLife;
        if (last)
            killWithin(8000);
        if (last && moment == InCopy)
            session.recovery().flush();
        else if (last || random() % 150 == 0)
            session.manager().save();
    });
    timer.setTimerType(Qt::PreciseTimer);
    timer.start(5);
    return QCoreApplication::exec();
}
