#include "quick/HintTableModel.h"
#include "quick/TutorialItemListModel.h"
#include "support/FileBytes.h"
#include "support/WarningGuard.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <algorithm>
#include <functional>
#include <memory>

namespace
{
const QString kScenario = QStringLiteral("tutorial-win/qml/Tutorial/T.js");
const QString kFirst = QStringLiteral("tutorial-win/translations/ja_JP.ts");
const QString kSecond = QStringLiteral("tutorial-win/translations/en_US.ts");

/// Messages as Qt's tools write them, from such as "1 text|2 ?text", of which the second is unfinished.
QByteArray source(const char *rows)
{
    QString xml = QStringLiteral("<?xml version='1.0' encoding='utf-8'?>\n<!DOCTYPE TS>\n<TS version=\"2.1\">\n"
                                 "    <context>\n        <name>T</name>\n");
    for (const QString &row : QString::fromLatin1(rows).split(QLatin1Char('|'))) {
        const bool unfinished = row.at(2) == QLatin1Char('?');
        const QString text = row.mid(unfinished ? 3 : 2);
        xml += QStringLiteral("        <message>\n            <source>#%1</source>\n            <translation%2%3\n"
                              "        </message>\n")
                   .arg(row.at(0))
                   .arg(QLatin1String(unfinished ? " type=\"unfinished\"" : ""),
                        text.isEmpty() ? QStringLiteral("/>") : QStringLiteral(">%1</translation>").arg(text));
    }
    return (xml + QStringLiteral("    </context>\n</TS>\n")).toUtf8();
}
} // namespace

/// Which translations are known to be older than what they were made from, within a session and from one to the next,
/// and how hints go to a translator and come back.
class tst_HintTranslation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFolder = std::make_unique<QTemporaryDir>();
        QVERIFY(mFolder->isValid() && QDir::setCurrent(mFolder->path()));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, mFolder->path());
        writeAll(kScenario,
                 "[{\"id\":1,\"hint\":qsTr(\"#1\")},{\"id\":2,\"hint\":qsTr(\"#2\")},"
                 "{\"id\":3,\"hint\":qsTr(\"#3\")},{\"id\":4,\"hint\":qsTr(\"#4\")}]");
        applicationObject = qApp;
        mManager = std::make_unique<TutorialManager>(nullptr, nullptr);
        mHistory.reset(static_cast<UndoRedo *>(UndoRedo::create(nullptr, nullptr)));
        mWarnings.begin();
    }
    void cleanup()
    {
        mWarnings.end();
        mHistory.reset();
        mManager.reset();
    }

    void followsEdits();
    void typedAnewIsNotStale();
    void goesWithCopies();
    void standsInTheFile();
    void takesOverWhatOthersMarked();
    void goesToATranslatorAndBack();
    void readsWhatToolsMake();
    void refusesOtherFiles();

private:
    void edit(int id, const char *field, const char *text)
    {
        mHistory->beginSequence(QStringLiteral("edit"));
        TutorialEditor::Manager::instance()->mData.getData(id)->setValue(QLatin1String(field), QLatin1String(text));
        mHistory->endSequence();
    }
    /// The second hints.
    static QString hints()
    {
        QStringList texts;
        for (int id = 1; id <= 4; ++id)
            texts.append(TutorialEditor::Manager::instance()->mData.getData(id)->mHint2);
        return texts.join(QLatin1Char(' '));
    }
    QList<int> stale() const
    {
        QList<int> ids = mManager->staleIds().values();
        std::sort(ids.begin(), ids.end());
        return ids;
    }
    void load(const char *second)
    {
        writeAll(kFirst, source("1 a|2 b|3 c|4 d"));
        writeAll(kSecond, source(second));
        mHistory->clear();
        QCOMPARE(mManager->loadTutorial(kScenario), QString());
    }
    QByteArray saved()
    {
        const QString error = mManager->save();
        return error.isEmpty() ? readAll(kSecond) : error.toUtf8();
    }

    std::unique_ptr<QTemporaryDir> mFolder;
    std::unique_ptr<TutorialManager> mManager;
    std::unique_ptr<UndoRedo> mHistory;
    WarningGuard mWarnings;
};

void tst_HintTranslation::followsEdits()
{
    load("1 A|2 ?B|3 #3");
    // A missing one is not stale, whatever stands beside it.
    edit(3, "hint", "cc");
    edit(4, "hint", "dd");
    QCOMPARE(stale(), QList<int>({ 2 }));
    edit(1, "hint", "aa");
    QCOMPARE(stale(), QList<int>({ 1, 2 }));
    edit(1, "hint2", "AA");
    QCOMPARE(stale(), QList<int>({ 2 }));
    // Back to the older translation, to the hint that it was made from, and forth again.
    mHistory->undo();
    QCOMPARE(stale(), QList<int>({ 1, 2 }));
    mHistory->undo();
    QCOMPARE(stale(), QList<int>({ 2 }));
    mHistory->redo();
    QCOMPARE(stale(), QList<int>({ 1, 2 }));
    mHistory->redo();
    edit(1, "hint", "a");
    QCOMPARE(stale(), QList<int>({ 1, 2 }));

    // One that stands does so for both hints, and to say so is a change to be saved.
    mHistory->clear();
    mManager->confirmTranslation(4);
    QVERIFY(!mManager->isModified());
    mManager->confirmTranslation(1);
    QVERIFY(mManager->isModified());
    QCOMPARE(stale(), QList<int>({ 2 }));
    edit(1, "hint", "aa");
    QCOMPARE(stale(), QList<int>({ 2 }));
    mManager->confirmTranslation(2);
    edit(2, "hint2", "");
    QCOMPARE(stale(), QList<int>());
}

void tst_HintTranslation::typedAnewIsNotStale()
{
    load("1 A|2 B");
    managerInstance = mManager.get();
    TutorialItemListModel form;
    form.refresh();
    HintTableModel table;
    table.setHistory(mHistory.get());
    const std::function<void(int, const char *)> ways[] = {
        [&](int id, const char *text) { table.setHint(id, true, QLatin1String(text)); },
        [&](int id, const char *text) {
            mHistory->beginSequence(QStringLiteral("setHint2"));
            form.setValue(id, QStringLiteral("hint2"), QLatin1String(text));
            mHistory->endSequence();
        },
    };
    int id = 0;
    for (const auto &type : ways) {
        const char *former = ++id == 1 ? "A" : "B";
        edit(id, "hint", "other");
        type(id, "X");
        QCOMPARE(stale(), QList<int>());
        edit(id, "hint", "third");
        QCOMPARE(stale(), QList<int>({ id }));
        type(id, former);
        QCOMPARE(stale(), QList<int>());
        mHistory->undo();
        QCOMPARE(stale(), QList<int>({ id }));
        mHistory->redo();
        QCOMPARE(stale(), QList<int>());
    }
}

void tst_HintTranslation::goesWithCopies()
{
    load("1 A|2 ?B");
    const auto paste = [this](const QList<int> &ids) {
        mManager->copyTutorialItemList(ids);
        mHistory->beginSequence(QStringLiteral("paste"));
        mManager->pasteTutorialItemList();
        mHistory->endSequence();
    };
    paste({ 1, 2 });
    QCOMPARE(stale(), QList<int>({ 2, 6 }));
    mHistory->undo();
    mHistory->redo();
    QCOMPARE(saved(), source("1 A|2 ?B|5 A|6 ?B"));
    // Another copy under the same id.
    mHistory->undo();
    mManager->confirmTranslation(2);
    paste({ 1, 2 });
    QCOMPARE(stale(), QList<int>());
}

void tst_HintTranslation::standsInTheFile()
{
    const char *second = "1 A|2 ?B|3 ?|4 ?#4";
    load(second);
    QCOMPARE(saved(), source(second));
    edit(1, "hint", "aa");
    // Nor does it get lost with the process. What is still being typed is not known as a translation.
    for (int i = 0; i < 50; ++i)
        mManager->unsavedWork({ { 1, QStringLiteral("hint2"), QStringLiteral("A%1").arg(i) } })();
    edit(4, "hint2", "DD");
    RecoveryCopy copy = mManager->unsavedWork({ { 4, QStringLiteral("hint"), QStringLiteral("dd") } })();
    QCOMPARE(copy.state.stale.value(QStringLiteral("en_US")).size(), 3);
    edit(4, "hint2", "#4");
    QVERIFY(copy.read(mManager->unsavedWork({})().toBytes()));
    QCOMPARE(mManager->loadTutorial(kScenario), QString());
    QCOMPARE(stale(), QList<int>({ 2 }));
    QVERIFY(mManager->takeUp(copy));
    QCOMPARE(stale(), QList<int>({ 1, 2 }));
    QCOMPARE(saved(), source("1 ?A|2 ?B|3 ?|4 ?#4"));
    QCOMPARE(mManager->loadTutorial(kScenario), QString());
    QCOMPARE(stale(), QList<int>({ 1, 2 }));
    mManager->confirmTranslation(1);
    edit(2, "hint2", "BB");
    QCOMPARE(saved(), source("1 A|2 BB|3 ?|4 ?#4"));
    // An undo after the save makes it stale again.
    mHistory->undo();
    QCOMPARE(saved(), source("1 A|2 ?B|3 ?|4 ?#4"));
    QVERIFY(!mManager->isModified());
}

void tst_HintTranslation::takesOverWhatOthersMarked()
{
    load("1 A|2 ?B|3 ?C|4 D");
    edit(4, "hint", "dd");
    // They marked the first, finished the second, wrote the third anew and left it marked, and wrote the fourth, from
    // the hint that was not edited yet.
    writeAll(kSecond, source("1 ?A|2 B|3 ?CC|4 DD"));
    QSignalSpy shown(mManager.get(), &TutorialManager::documentReplaced);
    QCOMPARE(saved(), source("1 ?A|2 B|3 ?CC|4 ?DD"));
    QCOMPARE(stale(), QList<int>({ 1, 3, 4 }));
    QCOMPARE(shown.size(), 1);
    // Both hints are theirs, and so suit each other.
    writeAll(kFirst, readAll(kFirst).replace(">c<", ">cc<"));
    writeAll(kSecond, source("1 ?A|2 B|3 CCC|4 D"));
    QCOMPARE(saved(), source("1 ?A|2 B|3 CCC|4 D"));
    QCOMPARE(stale(), QList<int>({ 1 }));
    // Another hint in the first language makes stale what was made from the one before.
    writeAll(kFirst, readAll(kFirst).replace(">b<", ">bb<"));
    QCOMPARE(saved(), source("1 ?A|2 ?B|3 CCC|4 D"));
    QCOMPARE(stale(), QList<int>({ 1, 2 }));
}

void tst_HintTranslation::goesToATranslatorAndBack()
{
    // The second one is stale, the third and the fourth are missing.
    load("1 A|2 ?B|3 ?");
    const QString file = QStringLiteral("hints.xlf");
    QCOMPARE(mManager->exportTranslation(QStringLiteral("hints")), QString());
    QByteArray xliff = readAll(file);
    const auto replace = [&xliff](const char *before, const QByteArray &after) {
        QVERIFY2(xliff.count(before) == 1, before);
        xliff.replace(before, after);
    };
    QVERIFY(xliff.contains("source-language=\"ja-JP\" target-language=\"en-US\""));
    QVERIFY(xliff.contains("<trans-unit id=\"#1\" approved=\"yes\">"));
    QVERIFY(xliff.contains("state=\"needs-review-translation\">B</target>"));
    // Nothing was translated: nothing comes back, not even over what has changed here.
    edit(1, "hint2", "own");
    writeAll(file, xliff);
    QCOMPARE(mManager->importTranslation(file).value(QStringLiteral("report")).toString(),
             QStringLiteral("Taken: 0\nNot translated: 4"));
    QCOMPARE(hints(), QStringLiteral("own B #3 #4"));

    // The first is changed on both sides, the second approved, the third translated from what has changed since; an
    // item is gone.
    replace(">A</target>", ">AA &lt;b&gt;\n&quot;</target>");
    replace("state=\"needs-review-translation\">B<", "state=\"signed-off\">B<");
    const int third = xliff.indexOf("</target>", xliff.indexOf("id=\"#3\""));
    xliff.insert(third, "CC");
    replace(">#4 ", ">#99 ");
    writeAll(file, xliff);
    edit(3, "hint", "cc");
    QCOMPARE(mManager->importTranslation(file).value(QStringLiteral("report")).toString(),
             QStringLiteral("Taken: 2\nNot stale any more: 1\nTaken over changes of yours: #1\n"
                            "Stale, for the text to be translated has changed: #3\n"
                            "Skipped, for there is no such item: #99"));
    QCOMPARE(hints(), QStringLiteral("AA <b>\n\" B CC #4"));
    QCOMPARE(stale(), QList<int>({ 3 }));
    mHistory->undo();
    QCOMPARE(hints(), QStringLiteral("own B #3 #4"));
    mHistory->redo();
    QCOMPARE(stale(), QList<int>({ 3 }));
    QCOMPARE(saved(), source("1 AA &lt;b>\n\"|2 B|3 ?CC"));
}

void tst_HintTranslation::readsWhatToolsMake()
{
    load("1 A|2 B|3 C|4 ?");
    const QString file = QStringLiteral("hints.xlf");
    QCOMPARE(mManager->exportTranslation(file), QString());
    QByteArray xliff = readAll(file);
    // Sentences and codes in elements, elements and attributes of the tool's own, another comment, and a source in
    // place of a target.
    xliff.replace(">A</target>",
                  "><mrk mtype=\"seg\">One.</mrk> <mrk mtype=\"seg\">Two.</mrk></target>"
                  "<alt-trans><target>no</target></alt-trans><o:meta xmlns:o=\"urn:o\" o:a=\"1\">m</o:meta>");
    xliff.replace(">B</target>", ">Press <g id=\"1\">O<bpt id=\"2\">&lt;b></bpt>K</g> now</target>");
    xliff.replace(">C</target>", ">Press<x id=\"1\"/> now</target>");
    xliff.replace(">#3 ", ">T #3 ");
    xliff.insert(xliff.indexOf("</target>", xliff.indexOf("id=\"#4\"")), "d");
    writeAll(file, xliff);
    QCOMPARE(mManager->importTranslation(file).value(QStringLiteral("report")).toString(),
             QStringLiteral("Taken: 3\nNot translated: 1"));
    QCOMPARE(hints(), QStringLiteral("One. Two. Press O<b>K now Press now #4"));
    // What XML can't hold is not in the file, and that is no change.
    edit(1, "hint", "a\1b");
    edit(1, "name", "\2");
    edit(1, "hint2", "A\1\rB");
    QCOMPARE(mManager->exportTranslation(QStringLiteral("other.xlf")), QString());
    xliff = readAll(QStringLiteral("other.xlf"));
    QVERIFY(xliff.contains(">ab</source>") && xliff.contains(">A\nB</target>"));
    QCOMPARE(mManager->importTranslation(QStringLiteral("other.xlf")).value(QStringLiteral("report")).toString(),
             QStringLiteral("Taken: 0\nNot translated: 1"));
    QVERIFY(stale().isEmpty());
}

void tst_HintTranslation::refusesOtherFiles()
{
    load("1 A|2 B");
    const QString file = QStringLiteral("hints.xlf");
    QCOMPARE(mManager->exportTranslation(file), QString());
    const QByteArray xliff = readAll(file);
    const auto errorOf = [&](const QByteArray &content) {
        writeAll(file, content);
        return mManager->importTranslation(file).value(QStringLiteral("error")).toString();
    };
    QVERIFY(errorOf(xliff.left(xliff.size() / 2)).startsWith(QStringLiteral("The file can't be read as XLIFF.\n")));
    QVERIFY(errorOf("").startsWith(QStringLiteral("The file can't be read as XLIFF.\n")));
    QCOMPARE(errorOf(QByteArray(xliff).replace("en-US", "fr-FR")),
             QStringLiteral("The file is a translation from ja_JP to fr_FR."));
    QCOMPARE(errorOf(QByteArray(xliff).replace("resname=\"T\"", "resname=\"U\"")),
             QStringLiteral("The file holds no hint of this tutorial."));
    mWarnings.expect(QStringLiteral("Failed to open"));
    QCOMPARE(mManager->importTranslation(QStringLiteral("none.xlf")).value(QStringLiteral("error")).toString(),
             QStringLiteral("Failed to read none.xlf."));
    QVERIFY(!mManager->isModified() && mHistory->isEmpty());
    QCOMPARE(mManager->exportTranslation(QStringLiteral("hints")), QStringLiteral("hints.xlf is there already."));
    mWarnings.expect(QStringLiteral("Failed to"));
    QCOMPARE(mManager->exportTranslation(QStringLiteral("none/hints.xlf")),
             QStringLiteral("Failed to write none/hints.xlf."));
}

QTEST_MAIN(tst_HintTranslation)
#include "tst_HintTranslation.moc"
