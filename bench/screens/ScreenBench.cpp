#include "ScreenBench.h"

#include "BareTree.h"
#include "SampleScenario.h"

#include "quick/TreeListItemSelectionModel.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialManager.h"

#include <QFile>
#include <QJsonObject>
#include <QSignalBlocker>
#include <QtTest>

#include <algorithm>
#include <cstdio>
#include <malloc.h>

namespace
{
constexpr int kRepetitions = 5;

QList<int> idRange(int first, int last, int step = 1)
{
    QList<int> ids;
    for (int id = first; id <= last; id += step)
        ids.append(id);
    return ids;
}

/// Bytes that the process has asked for and not given back.
double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

double bytesResident()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    constexpr double kPage = 4096;
    return file.open(QFile::ReadOnly) ? file.readAll().split(' ').value(1).toDouble() * kPage : 0;
}
} // namespace

ScreenBench::ScreenBench(const QVector<int> &sizes, const QStringList &only) : mTexts(textsOf(sizes)), mOnly(only) { }

QMap<int, QString> ScreenBench::textsOf(const QVector<int> &sizes)
{
    QMap<int, QString> texts;
    for (const int size : sizes)
        texts.insert(size, SampleScenario::flatText(size));
    return texts;
}

void ScreenBench::run()
{
    for (auto text = mTexts.cbegin(); text != mTexts.cend(); ++text) {
        mSize = text.key();
        mWindow.store(mSize, text.value());
        mWindow.open();
        checkComesToRest();
        row("openTutorial", [this] { return mWindow.open(); });
        row("openTutorialFloor", [this] { return BareTree(mSize).open(); });
        selections();
        edits();
        manyRows();
        scrolls();
    }
}

void ScreenBench::measureMemory()
{
    for (auto text = mTexts.cbegin(); text != mTexts.cend(); ++text) {
        mWindow.store(0, QStringLiteral("var scenario = [];"));
        mWindow.open();
        mSize = text.key();
        mWindow.store(mSize, text.value());
        const double before = bytesInUse();
        {
            const QSignalBlocker nobodyShowsIt(managerInstance);
            mWindow.load();
        }
        report("memoryOfDocument", (bytesInUse() - before) / mSize, "B");
        mWindow.open();
        report("memoryOfDocumentAndRows", (bytesInUse() - before) / mSize, "B");
        report("memoryOfTheProcess", bytesResident(), "B");
    }
}

void ScreenBench::selections()
{
    row("selectRow", [this] {
        mWindow.click(2);
        mWindow.settle();
        return mWindow.measure([this] { mWindow.click(5); }, [this] { return mWindow.currentId() == 5; });
    });
    row("goToLastRow", [this] {
        select(1);
        return mWindow.measure([this] { mWindow.press(Qt::Key_End); }, [this] { return mWindow.currentId() == mSize; });
    });
    row("selectAll", [this] {
        select(1);
        return mWindow.measure([this] { mWindow.press(Qt::Key_A, Qt::ControlModifier); },
                               [this] { return mWindow.selection()->getSelectedCount() >= mSize; });
    });
    row("selectAllFloor", [this] {
        BareTree tree(mSize);
        tree.open();
        return tree.selectAll();
    });
    row("shiftClick", [this] {
        select(1);
        mWindow.scrollToRow(mSize);
        return mWindow.measure([this] { mWindow.click(mSize, Qt::ShiftModifier); },
                               [this] { return mWindow.selection()->getSelectedCount() >= mSize; });
    });
    row("shiftDown", [this] {
        select(1);
        mWindow.selection()->setSelectedIdList(idRange(1, mSize / 2));
        mWindow.settle();
        return mWindow.measure([this] { mWindow.press(Qt::Key_Down, Qt::ShiftModifier); });
    });
    row("openJumpMenu", [this] { return openJumpMenu(); });
}

void ScreenBench::edits()
{
    row("addItem", [this] {
        select(3);
        return mWindow.measure([this] { mWindow.click(mWindow.item("addItemButton")); });
    });
    row("undo", [this] { return mWindow.measure([this] { mWindow.press(Qt::Key_Z, Qt::ControlModifier); }); });
    row("insertFloor", [this] {
        BareTree tree(mSize);
        tree.open();
        return tree.insertOne();
    });
    row("rename", [this] {
        select(2);
        mWindow.press(Qt::Key_F2);
        mWindow.press(Qt::Key_A + ++mRound % 26);
        return mWindow.measure([this] { mWindow.press(Qt::Key_Return); }, [this] { return shownName(2).size() == 1; });
    });
    row("undoOfRename", [this] {
        const QString name = shownName(2);
        return mWindow.measure([this] { mWindow.press(Qt::Key_Z, Qt::ControlModifier); },
                               [&] { return shownName(2) != name; });
    });
    row("redoOfRename", [this] {
        const QString name = shownName(2);
        return mWindow.measure([this] { mWindow.press(Qt::Key_Y, Qt::ControlModifier); },
                               [&] { return shownName(2) != name; });
    });
    row("prohibit", [this] {
        select(2);
        auto *toggle = mWindow.row(2)->findChild<QQuickItem *>(QStringLiteral("prohibition"));
        return mWindow.measure([&] { mWindow.click(toggle); });
    });
    row("prohibitAll", [this] {
        select(1);
        mWindow.selection()->selectAllItems();
        mWindow.settle();
        const QString value = ++mRound % 2 ? QStringLiteral("true") : QStringLiteral("false");
        return mWindow.measure([&] {
            mWindow.evaluate(QStringLiteral("UndoRedo.beginSequence('changeProhibited');"
                                            "settingScreen.model.setValue(-1, 'prohibited', %1);"
                                            "UndoRedo.endSequence()")
                                 .arg(value));
        });
    });
    row("typeIntoHint", [this] {
        select(2);
        mWindow.click(mWindow.item("hint"));
        mWindow.settle();
        return mWindow.measure([this] { mWindow.press(Qt::Key_A); });
    });
    row("checkAfterEdit", [this] {
        select(2);
        mWindow.click(mWindow.item("hint"));
        checkComesToRest();
        const int before = checkRevision();
        return mWindow.measure([this] { mWindow.press(Qt::Key_A); }, [&] { return checkRevision() != before; });
    });
}

void ScreenBench::manyRows()
{
    row("pasteRows", [this] {
        mWindow.open();
        select(1);
        mWindow.selection()->selectAllItems();
        mWindow.settle();
        mWindow.evaluate(QStringLiteral("settingScreen.copyItems()"));
        return mWindow.measure([this] { mWindow.evaluate(QStringLiteral("settingScreen.pasteItems()")); },
                               [this] { return mWindow.selection()->getSelectedCount() == mSize; });
    });
    row("dropRows", [this] { return dropRows(); });
    row("deleteEverySecond", [this] {
        mWindow.open();
        mWindow.selection()->setSelectedIdList(idRange(1, mSize, 2));
        mWindow.settle();
        return mWindow.measure([this] { mWindow.click(mWindow.item("deleteButton")); });
    });
    mWindow.open();
}

Cost ScreenBench::dropRows()
{
    mWindow.open();
    constexpr int kFirst = 6;
    constexpr int kTarget = 3;
    select(kFirst);
    mWindow.selection()->setSelectedIdList(idRange(kFirst, mSize));
    mWindow.settle();
    const QPoint from = mWindow.at(kFirst);
    const QPoint to = mWindow.at(kTarget, 11);
    return mWindow.measure([&] {
        QTest::mousePress(mWindow.window(), Qt::LeftButton, Qt::NoModifier, from);
        constexpr int kSteps = 10;
        for (int i = 1; i <= kSteps; ++i)
            QTest::mouseMove(mWindow.window(), from + (to - from) * i / kSteps);
        QTest::mouseRelease(mWindow.window(), Qt::LeftButton, Qt::NoModifier, to);
    });
}

Cost ScreenBench::openJumpMenu()
{
    select(2);
    QQuickItem *button = mWindow.item("jump");
    const auto isOpen = [button] {
        const auto *menu = button->property("lastPopup").value<QObject *>();
        return menu && menu->property("__popupVisible").toBool();
    };
    const Cost cost = mWindow.measure([&] { mWindow.click(button); }, isOpen);
    QMetaObject::invokeMethod(button->property("lastPopup").value<QObject *>(), "__dismissMenu");
    waitUntil("the menu is closed", [&] { return !isOpen(); });
    mWindow.settle();
    return cost;
}

int ScreenBench::checkRevision() const
{
    return mWindow.evaluate(QStringLiteral("settingScreen.problems.revision")).toInt();
}

void ScreenBench::checkComesToRest()
{
    // Longer than it pauses for the largest tutorial.
    constexpr int kRest = 6000;
    int revision = -1;
    while (revision != checkRevision()) {
        revision = checkRevision();
        QTest::qWait(kRest);
    }
}

Cost ScreenBench::scroll()
{
    select(1);
    constexpr int kTurns = 100;
    constexpr int kTurn = 120;
    QVector<Cost> costs;
    for (int i = 0; i < kTurns; ++i)
        costs.append(mWindow.measure([this] { mWindow.wheel(kTurn); }));
    return meanOf(costs);
}

void ScreenBench::scrolls()
{
    row(
        "scroll", [this] { return scroll(); }, &Cost::longestFrame);
    row(
        "scrollFloor",
        [this] {
            BareTree tree(mSize);
            tree.open();
            return tree.scroll();
        },
        &Cost::longestFrame);
}

QString ScreenBench::shownName(int id) const
{
    const QVariant row = mWindow.row(id)->property("rowModel");
    return row.value<QObject *>()->property("name").toString();
}

void ScreenBench::select(int id)
{
    mWindow.scrollToRow(0);
    // A click on the current row that is selected renames it half a second later, in the middle of another row here.
    mWindow.selection()->clear();
    mWindow.settle();
    mWindow.click(id);
    mWindow.settle();
}

void ScreenBench::row(const char *name, const std::function<Cost()> &act, double Cost::*figure)
{
    if (!mOnly.isEmpty() && !mOnly.contains(QLatin1String(name)))
        return;
    QVector<Cost> costs;
    for (int i = 0; i < kRepetitions; ++i) {
        mWindow.activate();
        costs.append(act());
    }
    std::sort(costs.begin(), costs.end(), [](const Cost &a, const Cost &b) { return a.processor < b.processor; });
    const Cost &cost = costs.at(kRepetitions / 2);
    std::printf("%-20s %7d %9.2f ms, %8.2f ms by the clock, %3d frames, the longest %.2f ms, %d slow\n", name, mSize,
                cost.processor, cost.wall, cost.frames, cost.longestFrame, cost.slowFrames);
    std::fflush(stdout);
    append(name, cost.*figure, "ms");
}

void ScreenBench::report(const char *name, double value, const char *unit)
{
    std::printf("%-20s %7d %9.0f %s\n", name, mSize, value, unit);
    append(name, value, unit);
}

void ScreenBench::append(const char *name, double value, const char *unit)
{
    mRows.append(QJsonObject{ { QStringLiteral("name"), QLatin1String(name) },
                              { QStringLiteral("size"), mSize },
                              { QStringLiteral("value"), value },
                              { QStringLiteral("unit"), QLatin1String(unit) } });
}
