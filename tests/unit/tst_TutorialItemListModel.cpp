#include "EditingSession.h"
#include "quick/TutorialItemListModel.h"

#include <QAbstractItemModelTester>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPersistentModelIndex>
#include <QtTest>

namespace
{
using Model = TutorialItemListModel;

QString rowShape(const QModelIndex &parent)
{
    QStringList texts;
    for (int i = 0; i < parent.model()->rowCount(parent); ++i) {
        const QModelIndex index = parent.model()->index(i, 0, parent);
        const QString id = index.data(Model::RoleId).toString();
        texts.append(index.data(Model::RoleFolder).toBool() ? id + QLatin1Char('[') + rowShape(index) + QLatin1Char(']')
                                                            : id);
    }
    return texts.join(QLatin1Char(' '));
}

/// All that the rows show.
QString contentOf(const QModelIndex &index)
{
    QString text =
        QStringLiteral("%1 %2 %3 %4 %5 %6(")
            .arg(index.data(Model::RoleId).toString(), index.data(Model::RoleName).toString(),
                 index.data(Model::RoleIcon).toString(), index.data(Model::RoleJump).toString(),
                 QString::number(index.data(Model::RoleProhibited).toBool()), index.data(Model::RoleFolder).toString());
    for (int i = 0; i < index.model()->rowCount(index); ++i)
        text += contentOf(index.model()->index(i, 0, index));
    return text + QLatin1Char(')');
}

/// Document, history and model, with the model under watch.
struct ModelSession : EditingSession
{
    explicit ModelSession(const QString &document)
    {
        load(document);
        model.refresh();
    }

    QModelIndex at(int id) const { return model.getModelIndexById(id); }
    bool prohibited(int id) const { return at(id).data(Model::RoleProhibited).toBool(); }
    QString rows() const { return rowShape(model.getRootIndex()); }

    Model model;
    QAbstractItemModelTester tester{ &model, QAbstractItemModelTester::FailureReportingMode::QtTest };
};
} // namespace

class TutorialItemListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roles();
    void queries_data();
    void queries();
    void isAncestor();
    void isLower();
    void withoutARow();
    void refreshPartialFollows_data();
    void refreshPartialFollows();
    void refreshPartialKeepsStandingRows();
    void refreshPartialTouchesNamesOnly();
    void refreshRolesIsRefresh();
    void idPassesToAFolder();
    void setValueWritesTheRow();
    void setValueOfAFolder();
    void setValueOfASingleItem();
    void setValueWithoutEffect();
    void getValueOfNothing();
    void edits();
    void links();
    void treeJson();
};

void TutorialItemListModelTest::roles()
{
    const ModelSession session(QStringLiteral("1"));
    const QHash<int, QByteArray> names = { { 0, "name" },   { 257, "id" },         { 258, "icon" },
                                           { 259, "jump" }, { 262, "prohibited" }, { 263, "folder" } };
    QCOMPARE(session.model.roleNames(), names);
    QCOMPARE(session.model.property("RoleFolder").toInt(), 263);
    QCOMPARE(session.model.property("RoleJsonText").toInt(), 260);
    QCOMPARE(session.model.getRootIndex().data(Model::RoleName).toString(), QStringLiteral("/"));
    QCOMPARE(session.at(1).data(Model::RoleIcon).toString(), QStringLiteral("click"));
    QCOMPARE(session.at(1).data(Model::RoleJump), QVariant(-1));
}

void TutorialItemListModelTest::queries_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("parentId");
    QTest::addColumn<int>("ancestorId");
    QTest::addColumn<int>("twoUp");
    QTest::addColumn<QList<int>>("focus");
    // The document is 1[2[3] 4] 5; -9 stands for an invalid index.
    QTest::newRow("root") << -1 << -1 << -1 << -1 << -9 << QList<int>({ -1, 1, 2, 3 });
    QTest::newRow("folder") << 1 << 0 << -1 << 1 << -9 << QList<int>({ -1, 1 });
    QTest::newRow("inner folder") << 2 << 1 << 1 << 1 << -1 << QList<int>({ -1, 1, 2 });
    QTest::newRow("inner item") << 3 << 2 << 2 << 1 << 1 << QList<int>({ -1, 1, 2, 3 });
    QTest::newRow("item") << 5 << 0 << -1 << 5 << -9 << QList<int>({ -1, 5 });
    QTest::newRow("unknown") << 9 << -1 << -1 << -1 << -9 << QList<int>();
}

void TutorialItemListModelTest::queries()
{
    QFETCH(int, id);
    QFETCH(int, twoUp);
    QFETCH(QList<int>, focus);
    const ModelSession session(QStringLiteral("1[2[3] 4] 5"));
    const QModelIndex index = session.at(id);
    QCOMPARE(session.model.exists(id), index.isValid());
    QTEST(session.model.getDepth(index), "depth");
    QTEST(session.model.getParentId(index), "parentId");
    QTEST(session.model.getAncestorId(index), "ancestorId");
    QCOMPARE(session.model.getAncestor(index, 0), index);
    QCOMPARE(session.model.getAncestor(index, 2), session.at(twoUp));
    QCOMPARE(session.model.getFocusIdList(id).value<QList<int>>(), focus);
}

void TutorialItemListModelTest::isAncestor()
{
    const ModelSession session(QStringLiteral("1[2[3] 4] 5"));
    const auto isAncestor = [&session](int ancestor, int id) {
        return session.model.isAncestor(session.at(ancestor), session.at(id));
    };
    QVERIFY(isAncestor(1, 2));
    QVERIFY(isAncestor(1, 3));
    QVERIFY(isAncestor(2, 3));
    QVERIFY(!isAncestor(2, 4));
    QVERIFY(!isAncestor(3, 3));
    QVERIFY(!isAncestor(3, 1));
    QVERIFY(!isAncestor(-1, 3));
    QVERIFY(!isAncestor(9, 3));
    QVERIFY(!isAncestor(1, 9));
}

void TutorialItemListModelTest::isLower()
{
    const ModelSession session(QStringLiteral("1[2[3] 4] 5"));
    QVERIFY(session.model.isLower(4, 3));
    QVERIFY(!session.model.isLower(3, 4));
    QVERIFY(session.model.isLower(2, 1));
    QVERIFY(session.model.isLower(9, 1));
    QVERIFY(!session.model.isLower(1, 9));
    QVERIFY(!session.model.isLower(3, 3));
    QVERIFY(!session.model.isLower(8, 9));
}

void TutorialItemListModelTest::withoutARow()
{
    ModelSession session { QString() };
    QCOMPARE(session.model.rowCount(), 1);
    QCOMPARE(session.model.getFocusIdList(-1).value<QList<int>>(), QList<int>({ -1 }));
    session.model.clear();
    QVERIFY(!session.model.getRootIndex().isValid());
    QVERIFY(!session.at(1).isValid());
    session.model.refreshRoles();
    session.model.refreshPartial();
    QCOMPARE(session.model.getRootIndex().data(Model::RoleId).toInt(), -1);
}

void TutorialItemListModelTest::refreshPartialFollows_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const char *pairs[][2] = { { "", "1 2[3]" },
                               { "1 2[3]", "" },
                               { "1 2 3", "1 2 3" },
                               { "1 2 3", "3 2 1" },
                               { "1 2 3 4 5", "1 7 8 3 9 5" },
                               { "1 2 3", "4 1 2 3 5" },
                               { "1[2 3] 4[5]", "4[2 5] 1[3]" },
                               { "1[2[3[4]]]", "4 3[] 2[] 1[]" },
                               { "4 3[] 2[] 1[]", "1[2[3[4]]]" },
                               { "1 2 3 4 5 6", "2 1 4 3 6 5" } };
    for (const auto &pair : pairs)
        QTest::addRow("%s to %s", pair[0], pair[1]) << QString::fromLatin1(pair[0]) << QString::fromLatin1(pair[1]);
}

void TutorialItemListModelTest::refreshPartialFollows()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    ModelSession session(before);
    session.load(after);
    session.model.refreshPartial();
    QCOMPARE(session.rows(), after);
    session.model.refreshRoles();
    QCOMPARE(contentOf(session.model.getRootIndex()), contentOf(Model().getRootIndex()));
}

void TutorialItemListModelTest::refreshPartialKeepsStandingRows()
{
    ModelSession session(QStringLiteral("1 2 3 4"));
    const QPersistentModelIndex row1 = session.at(1);
    const QPersistentModelIndex row2 = session.at(2);
    const QPersistentModelIndex row3 = session.at(3);
    const QPersistentModelIndex row4 = session.at(4);
    session.load(QStringLiteral("1 3 5 2 4"));
    session.model.refreshPartial();
    // Of two that swap places, the one that now comes later keeps its row.
    QVERIFY(row1.isValid());
    QVERIFY(!row3.isValid() || !row2.isValid());
    QCOMPARE(row3.isValid(), true);
    QVERIFY(row4.isValid());
    QCOMPARE(session.rows(), QStringLiteral("1 3 5 2 4"));
}

void TutorialItemListModelTest::refreshPartialTouchesNamesOnly()
{
    ModelSession session(QStringLiteral("1[2 3]"));
    for (const int id : { 2, 3 }) {
        session.record(id)->mName = QStringLiteral("new%1").arg(id);
        session.record(id)->mProhibited = true;
        session.record(id)->mIcon = QStringLiteral("eye");
    }
    session.data().mRoot.mChildren.append(EditingSession::Item(3, false));
    session.data().mRoot.mChildren[0].mChildren.removeLast();
    session.model.refreshPartial();
    QCOMPARE(session.rows(), QStringLiteral("1[2] 3"));
    QCOMPARE(session.at(2).data().toString(), QStringLiteral("new2"));
    QCOMPARE(session.at(2).data(Model::RoleIcon).toString(), QStringLiteral("click"));
    QCOMPARE(session.at(2).data(Model::RoleProhibited), QVariant(false));
    QCOMPARE(session.at(3).data().toString(), QStringLiteral("new3"));
    QCOMPARE(session.at(3).data(Model::RoleIcon), QVariant());
    QCOMPARE(session.at(3).data(Model::RoleProhibited), QVariant());
}

void TutorialItemListModelTest::refreshRolesIsRefresh()
{
    ModelSession session(QStringLiteral("1[2 3] 4[5] 6"));
    session.sequence(QStringLiteral("prohibited"), [&session] {
        session.model.setValue(1, QStringLiteral("prohibited"), true);
        session.model.setValue(6, QStringLiteral("jump"), 5);
    });
    session.record(5)->mProhibited = true;
    session.record(5)->mIcon = QStringLiteral("wait");
    session.model.refreshPartial();
    session.model.refreshRoles();
    QCOMPARE(contentOf(session.model.getRootIndex()), contentOf(Model().getRootIndex()));
    QVERIFY(session.prohibited(4));
    session.history().undo();
    session.model.refreshPartial();
    QVERIFY(session.prohibited(1));
    session.model.refreshRoles();
    QVERIFY(!session.prohibited(1));
    QCOMPARE(contentOf(session.model.getRootIndex()), contentOf(Model().getRootIndex()));
    QSignalSpy changes(&session.model, &Model::dataChanged);
    session.model.refreshRoles();
    QCOMPARE(changes.count(), 0);
}

void TutorialItemListModelTest::idPassesToAFolder()
{
    ModelSession session(QStringLiteral("1 2"));
    session.load(QStringLiteral("1 2[3]"));
    session.model.refreshPartial();
    QCOMPARE(session.rows(), QStringLiteral("1 2[3]"));
}

void TutorialItemListModelTest::setValueWritesTheRow()
{
    ModelSession session(QStringLiteral("1"));
    session.model.setValue(1, QStringLiteral("name"), QStringLiteral("n"));
    session.model.setValue(1, QStringLiteral("icon"), QStringLiteral("eye"));
    session.model.setValue(1, QStringLiteral("jump"), 7);
    session.model.setValue(1, QStringLiteral("prohibited"), true);
    session.model.setValue(1, QStringLiteral("hint"), QStringLiteral("h"));
    QCOMPARE(contentOf(session.model.getRootIndex()),
             contentOf(Model().getRootIndex()).replace(QStringLiteral("-1 /   1"), QStringLiteral("-1 /   0")));
    QCOMPARE(session.model.getValue(1, QStringLiteral("hint")).toString(), QStringLiteral("h"));
    QVERIFY(!session.history().canUndo());
}

void TutorialItemListModelTest::setValueOfAFolder()
{
    ModelSession session(QStringLiteral("1[2 3[4] 5[]] 6"));
    session.sequence(QStringLiteral("prohibited"),
                     [&session] { session.model.setValue(1, QStringLiteral("prohibited"), true); });
    QVERIFY(session.record(2)->mProhibited && session.record(4)->mProhibited);
    QVERIFY(!session.record(1)->mProhibited && !session.record(3)->mProhibited && !session.record(6)->mProhibited);
    QVERIFY(session.prohibited(1) && session.prohibited(3) && !session.prohibited(5) && !session.prohibited(-1));
    session.model.setValue(-1, QStringLiteral("prohibited"), true);
    QVERIFY(session.prohibited(-1) && session.prohibited(6));
    session.history().undo();
    QVERIFY(!session.record(2)->mProhibited && !session.record(4)->mProhibited);
}

void TutorialItemListModelTest::setValueOfASingleItem()
{
    ModelSession session(QStringLiteral("1[2 3]"));
    session.model.setValue(2, QStringLiteral("prohibited"), true);
    session.model.setValue(3, QStringLiteral("prohibited"), true);
    QVERIFY(session.prohibited(2) && session.prohibited(3));
    QVERIFY(!session.prohibited(1));
    session.model.refreshRoles();
    QVERIFY(session.prohibited(1));
}

void TutorialItemListModelTest::setValueWithoutEffect()
{
    ModelSession session(QStringLiteral("1 2"));
    session.sequence(QStringLiteral("icon"),
                     [&session] { session.model.setValue(1, QStringLiteral("icon"), QStringLiteral("click")); });
    QVERIFY(!session.history().canUndo());

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("QStandardItem not found 9")));
    session.model.setValue(9, QStringLiteral("icon"), 1);
    delete session.data().mDataList.takeFirst();
    const QRegularExpression noRecord(QStringLiteral("tutorialItemData not found 1"));
    QTest::ignoreMessage(QtWarningMsg, noRecord);
    session.model.setValue(1, QStringLiteral("icon"), 1);
    // The walk goes on with the other rows.
    QTest::ignoreMessage(QtWarningMsg, noRecord);
    session.model.setValue(-1, QStringLiteral("prohibited"), true);
    QVERIFY(session.record(2)->mProhibited);
    QVERIFY(!session.prohibited(1));
}

void TutorialItemListModelTest::getValueOfNothing()
{
    const ModelSession session { QString() };
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("tutorialItemData not found -1")));
    QCOMPARE(session.model.getValue(-1, QStringLiteral("icon")), QVariant(QStringLiteral("click")));
}

void TutorialItemListModelTest::edits()
{
    ModelSession session(QStringLiteral("1 2"));
    Model &model = session.model;
    session.sequence(QStringLiteral("edits"), [&session, &model] {
        QCOMPARE(model.addFolder(1), 3);
        QCOMPARE(model.addItem(3), 4);
        QCOMPARE(model.addItem(-1), 5);
        model.refreshPartial();
        model.changeItemName(session.at(2), model.getValidName(QStringLiteral("name1")));
        model.moveIdListBeforeIndex(session.at(1), { 2, 5 });
        model.moveIdListIntoIndex(session.at(3), { 1 });
    });
    model.refreshPartial();
    QCOMPARE(session.rows(), QStringLiteral("2 5 3[4 1]"));
    QCOMPARE(session.at(2).data().toString(), QStringLiteral("name3"));
    QCOMPARE(session.at(3).data().toString(), QStringLiteral("folder1"));
    QCOMPARE(session.at(4).data().toString(), QStringLiteral("item001"));
    QCOMPARE(session.at(5).data().toString(), QStringLiteral("item002"));
    session.sequence(QStringLiteral("delete"), [&model] { model.deleteIdList({ 3, 5 }); });
    model.refreshPartial();
    QCOMPARE(session.rows(), QStringLiteral("2"));
    session.history().undo();
    session.history().undo();
    model.refreshPartial();
    QCOMPARE(session.rows(), QStringLiteral("1 2"));
}

void TutorialItemListModelTest::links()
{
    ModelSession session(QStringLiteral("1 2"));
    const auto linkOfUndo = [&session] {
        session.history().undo();
        return QJsonDocument::fromJson(session.context().takeLink().toUtf8()).object().toVariantMap();
    };
    const QString refresh = QStringLiteral("refresh");
    const QString single = QStringLiteral("tutorialItemId");
    session.model.addItem(1);
    QCOMPARE(linkOfUndo(), QVariantMap({ { single, 1 }, { refresh, true } }));
    session.model.addFolder(1);
    QCOMPARE(linkOfUndo(), QVariantMap({ { single, 3 }, { refresh, true } }));
    session.model.deleteIdList({ 1, 2 });
    QCOMPARE(linkOfUndo(),
             QVariantMap({ { QStringLiteral("tutorialItemIdList"), QVariantList({ 1, 2 }) }, { refresh, true } }));
}

void TutorialItemListModelTest::treeJson()
{
    ModelSession session(QStringLiteral("1 2[3 4[]]"));
    session.record(1)->mName = QStringLiteral("a \"b\"");
    const QString text = session.model.getTreeJson();
    QCOMPARE(text,
             QStringLiteral("{ \"id\": -1, \"name\": \"root\", \"folder\": true, \"children\": [\n"
                            "\t{\"id\":1,\"name\":\"a \\\"b\\\"\",\"folder\":false},\n"
                            "\t\t{\"id\":2,\"name\":\"name2\",\"folder\":true,\"children\":["
                            "{\"id\":3,\"name\":\"name3\",\"folder\":false},"
                            "{\"id\":4,\"name\":\"name4\",\"folder\":true,\"children\":[]}]}\n] }"));
    QVERIFY(QJsonDocument::fromJson(text.toUtf8()).isObject());
    session.load(QString());
    QVERIFY(session.model.getTreeJson().endsWith(QLatin1String("[\n\t\n] }")));
}

QTEST_MAIN(TutorialItemListModelTest)
#include "tst_TutorialItemListModel.moc"
