#pragma once

#include "support/Shape.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml>
#include <QtTest>

/// The application window of the authoring mode, with the hands and eyes of a writer.
class AuthoringScreen
{
protected:
    static QString shape() { return Shape::of(TutorialEditor::Manager::instance()->mData.mRoot); }
    static TutorialItemData *record(int id) { return TutorialEditor::Manager::instance()->mData.getData(id); }
    /// Evaluates a script in the context of the window.
    QVariant evaluate(const QString &script) const
    {
        QQmlExpression expression(qmlContext(mWindow), mWindow, script);
        const QVariant result = expression.evaluate();
        if (expression.hasError())
            qWarning().noquote() << expression.error().toString();
        return result;
    }

    // What is on the screen

    QQuickItem *item(const char *name) const { return mWindow->findChild<QQuickItem *>(QLatin1String(name)); }
    QString shown(const char *field) const { return item(field)->property("text").toString(); }
    QQuickItem *screen() const { return item("TutorialSettingItem"); }
    QQuickItem *tree() const { return item("treeListView"); }
    QQuickItem *marker() const { return item("marker"); }
    /// The id in the settings, and the ids that are highlighted in tree order.
    int currentId() const { return screen()->property("itemId").toInt(); }
    QString selected() const
    {
        QStringList ids;
        for (const QVariant &id : screen()->property("selectedIdList").toList())
            ids.append(id.toString());
        return ids.join(QLatin1Char(' '));
    }
    QQuickItem *row(int id) const
    {
        QVariant delegate;
        QMetaObject::invokeMethod(tree(), "getItemById", Q_RETURN_ARG(QVariant, delegate), Q_ARG(QVariant, id));
        return delegate.value<QQuickItem *>();
    }
    QQuickItem *renameField(int id) const { return row(id)->findChild<QQuickItem *>(QStringLiteral("renameField")); }
    /// The rows in view from the top, as their delegates show them: id and name, with "/" for a
    /// folder and a blank per level before.
    QStringList shownRows() const
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
            QString text =
                QString((int(place.x()) - 20) / 20, QLatin1Char(' ')) + delegate->property("rowId").toString();
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
    QString shownIds() const
    {
        return shownRows()
            .replaceInStrings(QRegularExpression(QStringLiteral("^ *(-?\\d+).*")), QStringLiteral("\\1"))
            .join(QLatin1Char(' '));
    }
    qreal scrolled() const
    {
        QVariant place;
        QMetaObject::invokeMethod(item("view"), "scrolled", Q_RETURN_ARG(QVariant, place));
        return place.toReal();
    }
    static QQuickWindow *visibleWindow(const char *objectName)
    {
        for (QWindow *window : QGuiApplication::allWindows()) {
            if (window->objectName() == QLatin1String(objectName) && window->isVisible())
                return qobject_cast<QQuickWindow *>(window);
        }
        return nullptr;
    }
    static QQuickWindow *saveQuestion() { return visibleWindow("SaveChangeDialog"); }
    static QList<QQuickItem *> visibleItems(QQuickItem *item)
    {
        if (!item->isVisible())
            return {};
        QList<QQuickItem *> items = { item };
        for (QQuickItem *child : item->childItems())
            items += visibleItems(child);
        return items;
    }
    static QQuickItem *find(QQuickItem *item, const QString &nameOrText)
    {
        for (QQuickItem *each : visibleItems(item)) {
            if (each->objectName() == nameOrText || each->property("text").toString() == nameOrText)
                return each;
        }
        return nullptr;
    }
    static QWidget *dialog() { return QApplication::activeModalWidget(); }
    static QMessageBox *messageBox() { return qobject_cast<QMessageBox *>(dialog()); }

    // What the writer does

    bool activate() const
    {
        mWindow->requestActivate();
        return QTest::qWaitForWindowActive(mWindow)
            && QTest::qWaitFor([this] { return QGuiApplication::focusWindow() == mWindow; });
    }
    /// Waits until no timer of the tree runs: what follows a selection in short timers must not take
    /// the focus from what is done next.
    void settle() const
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
    /// Goes to an item as the host does, and waits.
    void select(int id) const
    {
        Q_EMIT managerInstance->actionIdChanged(id);
        QVERIFY(QTest::qWaitFor([&] { return currentId() == id; }));
        settle();
    }
    void selectInTree(int id) const
    {
        tree()->setProperty("autoActiveFocusOneShot", true);
        select(id);
    }
    bool open(int folderId) const
    {
        selectInTree(folderId);
        press(Qt::Key_Plus);
        // Its first item has the next id.
        return QTest::qWaitFor([&] { return row(folderId + 1) != nullptr; });
    }
    /// A point of a row: x counts from the tree's left edge, dy from the row's middle.
    QPoint at(int id, int x = 100, int dy = 0) const
    {
        const QQuickItem *found = nullptr;
        if (!QTest::qWaitFor([&] { return (found = row(id)) != nullptr; }))
            qFatal("No row of the id %d", id);
        return QPoint(x, qRound(found->mapToScene(QPointF(0, found->height() / 2)).y()) + dy);
    }
    void click(QQuickItem *target) const
    {
        QVERIFY(target);
        QTest::mouseMove(target->window(), centre(target));
        QTest::mouseClick(target->window(), Qt::LeftButton, Qt::NoModifier, centre(target));
    }
    void click(int id, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::mouseClick(mWindow, Qt::LeftButton, modifiers, at(id));
    }
    void press(const QKeySequence &keys) const
    {
        const int code = keys[0];
        QTest::keyClick(mWindow, Qt::Key(code & ~Qt::KeyboardModifierMask),
                        Qt::KeyboardModifiers(code & Qt::KeyboardModifierMask));
    }
    void type(const QString &text) const
    {
        for (const QChar character : text)
            QTest::keyClick(mWindow, character.toLatin1());
    }
    void typeInto(const char *field, const QString &text) const
    {
        click(item(field));
        press(QKeySequence::SelectAll);
        type(text);
    }
    void rename(int id, const QString &name) const
    {
        selectInTree(id);
        press(Qt::Key_F2);
        QVERIFY(renameField(id)->isVisible());
        type(name);
        press(Qt::Key_Return);
    }
    void undo() const { press(QKeySequence::Undo); }
    void redo() const { press(QKeySequence::Redo); }
    /// Presses on a row and takes it, in small steps, to a point; drop() lets it go.
    void drag(int id, const QPoint &target)
    {
        mMouse = at(id);
        QTest::mousePress(mWindow, Qt::LeftButton, Qt::NoModifier, mMouse);
        moveTo(target);
    }
    void moveTo(const QPoint &target)
    {
        constexpr int kSteps = 12;
        const QPoint start = mMouse;
        for (int i = 1; i <= kSteps; ++i)
            QTest::mouseMove(mWindow, start + (target - start) * i / kSteps);
        mMouse = target;
    }
    void drop() const { QTest::mouseRelease(mWindow, Qt::LeftButton, Qt::NoModifier, mMouse); }
    /// The menus of the menu bar, and the one of the tree as the last.
    QList<QObject *> menus() const
    {
        QList<QObject *> menus;
        for (const QVariant &menu : evaluate(QStringLiteral("Array.prototype.slice.call(menuBar.menus)")).toList())
            menus.append(menu.value<QObject *>());
        menus.append(tree()->property("contextMenu").value<QObject *>());
        return menus;
    }
    /// Chooses an entry of a menu of the menu bar, by their texts.
    void choose(const char *title, const char *entry) const
    {
        for (QObject *menu : menus()) {
            if (menu->property("title").toString() != QLatin1String(title))
                continue;
            press(Qt::ALT + QString::fromLatin1(title).section(QLatin1Char('&'), 1).at(0).toUpper().unicode());
            chooseFrom(menu, entry);
        }
    }
    /// Right-clicks a point of the tree and chooses an entry of the menu that opens there.
    void chooseAt(const QPoint &place, const char *entry) const
    {
        QTest::mouseClick(mWindow, Qt::RightButton, Qt::NoModifier, place);
        chooseFrom(menus().last(), entry);
    }
    /// Waits for a message box, clicks a button of it and goes back to the window. The text of the box.
    QString answer(QMessageBox::StandardButton button) const
    {
        // A box that goes before the window manager has given it the focus leaves the focus nowhere.
        if (!QTest::qWaitFor([] { return messageBox() != nullptr; }) || !QTest::qWaitForWindowActive(messageBox()))
            return QStringLiteral("no message box");
        const QString text = messageBox()->text();
        if (QAbstractButton *shown = messageBox()->button(button))
            QTest::mouseClick(shown, Qt::LeftButton);
        return QTest::qWaitFor([] { return messageBox() == nullptr; }) && activate() ? text
                                                                                     : QStringLiteral("still open");
    }
    /// The same with the question about unsaved changes. False if it has not come or not gone.
    static bool answerSaveQuestion(const char *button)
    {
        if (!QTest::qWaitFor([] { return saveQuestion() != nullptr; }) || !QTest::qWaitForWindowExposed(saveQuestion()))
            return false;
        QQuickItem *found = find(saveQuestion()->contentItem(), QLatin1String(button));
        if (found)
            QTest::mouseClick(saveQuestion(), Qt::LeftButton, Qt::NoModifier, centre(found));
        return QTest::qWaitFor([] { return saveQuestion() == nullptr; });
    }

    QQuickWindow *mWindow = nullptr; // owned by the engine

private:
    static QPoint centre(const QQuickItem *item)
    {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }
    /// Waits until the menu is open and goes to an entry by keys; closes it where that is off.
    void chooseFrom(QObject *menu, const char *entry) const
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

    QPoint mMouse;
};
