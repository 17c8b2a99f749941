#pragma once

#include "quick/TreeListItemSelectionModel.h"
#include "quick/TutorialItemListModel.h"
#include "support/EditingSession.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

/// A window with the tree list control on a document, and the hands of a user.
class TreeListFixture
{
public:
    /// The document as EditingSession reads it.
    explicit TreeListFixture(const QString &document)
    {
        session.load(document);
        mEngine.load(QUrl::fromLocalFile(QStringLiteral(SCREENS_SOURCE_DIR "/TreeListWindow.qml")));
        window = qobject_cast<QQuickWindow *>(mEngine.rootObjects().value(0));
        if (!window)
            qFatal("TreeListWindow.qml does not load");
        tree = child("tree");
        selection = tree->property("selection").value<TreeListItemSelectionModel *>();
        model = window->property("model").value<TutorialItemListModel *>();
        window->requestActivate();
        mReady = QTest::qWaitForWindowActive(window);
    }

    /// Whether the tree has come up with its first item selected.
    bool isReady()
    {
        return mReady && QTest::qWaitFor([this] { return itemId() >= 0; });
    }

    QQuickItem *child(const char *property) const { return window->property(property).value<QQuickItem *>(); }

    /// The delegate of that id, or null.
    QQuickItem *row(int id) const
    {
        QVariant delegate;
        QMetaObject::invokeMethod(tree, "getItemById", Q_RETURN_ARG(QVariant, delegate), Q_ARG(QVariant, id));
        return delegate.value<QQuickItem *>();
    }

    /// A point of a row: x counts from the tree's left edge, dy from the row's middle.
    QPoint at(int id, qreal x = 150, qreal dy = 0) const
    {
        const QQuickItem *item = nullptr;
        if (!QTest::qWaitFor([&] { return (item = row(id)) != nullptr; }))
            qFatal("No row of the id %d", id);
        return QPoint(qRound(x), qRound(item->mapToScene(QPointF(0, item->height() / 2 + dy)).y()));
    }

    void click(int id, Qt::KeyboardModifiers modifiers = Qt::NoModifier, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(window, button, modifiers, at(id));
    }

    /// Goes to a row as the settings screen does.
    void focusOn(int id)
    {
        tree->setProperty("focusId", id);
        QMetaObject::invokeMethod(tree, "focusOn");
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { QTest::keyClick(window, key, modifiers); }

    void type(const QString &text)
    {
        for (const QChar character : text)
            QTest::keyClick(window, character.toLatin1());
    }

    /// Presses on a row and takes it, in small steps, to a point.
    void drag(int id, const QPoint &target)
    {
        mMouse = at(id);
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, mMouse);
        moveTo(target);
    }

    void moveTo(const QPoint &target)
    {
        const QPoint start = mMouse;
        constexpr int kSteps = 12;
        for (int i = 1; i <= kSteps; ++i)
            QTest::mouseMove(window, start + (target - start) * i / kSteps);
        mMouse = target;
    }

    void wheel(const QPoint &point, int angle)
    {
        QWheelEvent event(point, window->mapToGlobal(point), QPoint(), QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window, &event);
    }

    void drop() { QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, mMouse); }

    QQuickItem *part(const char *name) const { return tree->findChild<QQuickItem *>(QLatin1String(name)); }
    QQuickItem *marker() const { return part("marker"); }
    QQuickItem *renameField(int id) const { return row(id)->findChild<QQuickItem *>(QStringLiteral("renameField")); }

    /// The ids that are highlighted, in tree order.
    QString selected() const
    {
        const QList<int> idList = DataSupport::getIntList(selection->getTreeSelectedIdList());
        return DataSupport::join(idList, QStringLiteral(" "));
    }

    int itemId() const { return tree->property("itemId").toInt(); }

    /// The ids of the rows in view, from the top.
    QString visible() const
    {
        QStringList texts;
        for (qreal y = 0; y < tree->height(); y += 4) {
            QVariant index;
            QMetaObject::invokeMethod(tree, "rowAt", Q_RETURN_ARG(QVariant, index), Q_ARG(QVariant, 150),
                                      Q_ARG(QVariant, y));
            texts.append(index.value<QModelIndex>().data(TutorialItemListModel::RoleId).toString());
        }
        texts.removeAll(QString());
        texts.removeDuplicates();
        return texts.join(QLatin1Char(' '));
    }

    /// Opens a folder and waits for the row of its first item.
    bool open(int id)
    {
        const QModelIndex index = model->getModelIndexById(id);
        QMetaObject::invokeMethod(part("view"), "expand", Q_ARG(QVariant, index));
        const int first = model->index(0, 0, index).data(TutorialItemListModel::RoleId).toInt();
        return QTest::qWaitFor([=] { return row(first) != nullptr; });
    }

    void undo()
    {
        session.history().undo();
        QMetaObject::invokeMethod(tree, "follow");
    }

    EditingSession session;
    QQuickWindow *window = nullptr;
    QQuickItem *tree = nullptr;
    TreeListItemSelectionModel *selection = nullptr;
    TutorialItemListModel *model = nullptr;

private:
    QQmlApplicationEngine mEngine;
    bool mReady = false;
    QPoint mMouse;
};
