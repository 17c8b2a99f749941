#include "BareTree.h"

#include <QItemSelectionModel>
#include <QQmlComponent>
#include <QQmlContext>

namespace
{
constexpr int kTurns = 100;
constexpr int kTurn = 120;

const QByteArray kWindow = R"(
import QtQuick 2.9
import QtQuick.Controls 1.4
import QtQuick.Window 2.2
import QtQml.Models 2.2

Window {
    property QtObject rows: null
    property alias view: view

    width: 220
    height: 788
    visible: true

    TreeView {
        id: view

        anchors.fill: parent
        model: parent.Window.window ? parent.Window.window.rows : null
        selectionMode: SelectionMode.ExtendedSelection
        selection: ItemSelectionModel { objectName: "selection"; model: view.model }

        TableViewColumn { role: "display"; title: "name" }
    }
}
)";
} // namespace

BareTree::BareTree(int rowCount)
{
    for (int i = 0; i < rowCount; ++i)
        mModel.appendRow(new QStandardItem(QStringLiteral("item%1").arg(i)));
    QQmlComponent component(&mEngine);
    component.setData(kWindow, QUrl());
    mWindow.reset(qobject_cast<QQuickWindow *>(component.create()));
    if (!mWindow)
        qFatal("%s", qPrintable(component.errorString()));
    mView = mWindow->property("view").value<QObject *>();
    waitForFrame(mWindow.get());
}

Cost BareTree::measure(const std::function<void()> &act)
{
    const Measurement measurement;
    act();
    waitForFrame(mWindow.get());
    return measurement.cost();
}

Cost BareTree::open()
{
    return measure([this] { mWindow->setProperty("rows", QVariant::fromValue<QObject *>(&mModel)); });
}

Cost BareTree::insertOne()
{
    return measure([this] { mModel.insertRow(1, new QStandardItem(QStringLiteral("new"))); });
}

Cost BareTree::selectAll()
{
    auto *selection = mView->findChild<QItemSelectionModel *>(QStringLiteral("selection"));
    const QItemSelection all(mModel.index(0, 0), mModel.index(mModel.rowCount() - 1, 0));
    return measure([&] { selection->select(all, QItemSelectionModel::ClearAndSelect); });
}

Cost BareTree::scroll()
{
    auto *list = mView->property("flickableItem").value<QObject *>();
    QVector<Cost> costs;
    for (int i = 1; i <= kTurns; ++i)
        costs.append(measure([&] { list->setProperty("contentY", i * kTurn); }));
    return meanOf(costs);
}
