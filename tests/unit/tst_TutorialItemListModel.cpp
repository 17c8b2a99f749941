#include "EditingSession.h"
#include "quick/TutorialItemListModel.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>
#include <QtTest>

namespace
{
using Model = TutorialItemListModel;

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

    Model model;
    QAbstractItemModelTester tester{ &model, QAbstractItemModelTester::FailureReportingMode::QtTest };
};
} // namespace

class TutorialItemListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void queries();
    void refreshPartialFollows_data();
    void refreshPartialFollows();
    void refreshPartialKeepsStandingRows();
    void refreshRolesIsRefresh();
    void setValueOfAFolder();
    void setValueWithoutEffect();
    void treeJson();
};

void TutorialItemListModelTest::queries()
{
    const ModelSession session(QStringLiteral("1[2[3] 4] 5"));
    const Model &model = session.model;
    const auto focus = [&model](int id) { return model.getFocusIdList(id).value<QList<int>>(); };
    QCOMPARE(model.getDepth(session.at(3)), 2);
    QCOMPARE(model.getParentId(session.at(3)), 2);
    QCOMPARE(model.getAncestorId(session.at(3)), 1);
    QCOMPARE(model.getAncestor(session.at(3), 2), session.at(1));
    QVERIFY(!model.getAncestor(session.at(1), 2).isValid());
    QCOMPARE(focus(2), QList<int>({ -1, 1, 2 }));
    QCOMPARE(focus(-1), QList<int>({ -1, 1, 2, 3 }));
    QCOMPARE(focus(9), QList<int>());
    QVERIFY(model.isAncestor(session.at(1), session.at(3)));
    QVERIFY(!model.isAncestor(session.at(2), session.at(4)));
    QVERIFY(!model.isAncestor(session.at(3), session.at(3)));
    QVERIFY(model.isLower(4, 3) && model.isLower(2, 1));
    QVERIFY(!model.isLower(3, 4) && !model.isLower(3, 3));
}

void TutorialItemListModelTest::refreshPartialFollows_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const char *pairs[][2] = { { "", "1 2[3]" },
                               { "1 2[3]", "" },
                               { "1 2", "1 2[3]" }, // the id passes to a folder
                               { "1 2 3", "3 2 1" },
                               { "1 2 3 4 5", "1 7 8 3 9 5" },
                               { "1[2 3] 4[5]", "4[2 5] 1[3]" },
                               { "1[2[3[4]]]", "4 3[] 2[] 1[]" },
                               { "4 3[] 2[] 1[]", "1[2[3[4]]]" } };
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
    session.model.refreshRoles();
    QCOMPARE(contentOf(session.model.getRootIndex()), contentOf(Model().getRootIndex()));
}

void TutorialItemListModelTest::refreshPartialKeepsStandingRows()
{
    ModelSession session(QStringLiteral("1 2 3 4"));
    const QPersistentModelIndex rows[] = { session.at(1), session.at(3), session.at(4) };
    session.load(QStringLiteral("1 3 5 2 4"));
    session.model.refreshPartial();
    // Of two that swap places, the one that now comes later keeps its row.
    for (const QPersistentModelIndex &row : rows)
        QVERIFY(row.isValid());
}

void TutorialItemListModelTest::refreshRolesIsRefresh()
{
    ModelSession session(QStringLiteral("1[2 3] 4[5] 6"));
    session.sequence(QStringLiteral("prohibited"), [&session] {
        session.model.setValue(1, QStringLiteral("prohibited"), true);
        session.model.setValue(6, QStringLiteral("jump"), 5);
    });
    session.record(5)->mProhibited = true;
    session.model.refreshRoles();
    QCOMPARE(contentOf(session.model.getRootIndex()), contentOf(Model().getRootIndex()));
    QVERIFY(session.prohibited(4));
    session.history().undo();
    session.model.refreshPartial();
    QVERIFY(session.prohibited(1));
    session.model.refreshRoles();
    QVERIFY(!session.prohibited(1));
    QSignalSpy changes(&session.model, &Model::dataChanged);
    session.model.refreshRoles();
    QCOMPARE(changes.count(), 0);
}

void TutorialItemListModelTest::setValueOfAFolder()
{
    ModelSession session(QStringLiteral("1[2 3[4] 5[]] 6"));
    session.model.setValue(1, QStringLiteral("prohibited"), true);
    QVERIFY(session.record(2)->mProhibited && session.record(4)->mProhibited);
    QVERIFY(!session.record(1)->mProhibited && !session.record(3)->mProhibited && !session.record(6)->mProhibited);
    QVERIFY(session.prohibited(1) && session.prohibited(3) && !session.prohibited(5) && !session.prohibited(-1));
}

void TutorialItemListModelTest::setValueWithoutEffect()
{
    ModelSession session(QStringLiteral("1 2"));
    session.sequence(QStringLiteral("icon"),
                     [&session] { session.model.setValue(1, QStringLiteral("icon"), QStringLiteral("click")); });
    QVERIFY(!session.history().canUndo());
    delete session.data().mDataList.takeFirst();
    // The walk goes on with the other rows.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("tutorialItemData not found 1")));
    session.model.setValue(-1, QStringLiteral("prohibited"), true);
    QVERIFY(session.record(2)->mProhibited);
}

void TutorialItemListModelTest::treeJson()
{
    ModelSession session(QStringLiteral("1 2[3 4[]]"));
    session.record(1)->mName = QStringLiteral("a \"b\"");
    QCOMPARE(session.model.getTreeJson(),
             QStringLiteral("{ \"id\": -1, \"name\": \"root\", \"folder\": true, \"children\": [\n"
                            "\t{\"id\":1,\"name\":\"a \\\"b\\\"\",\"folder\":false},\n"
                            "\t\t{\"id\":2,\"name\":\"name2\",\"folder\":true,\"children\":["
                            "{\"id\":3,\"name\":\"name3\",\"folder\":false},"
                            "{\"id\":4,\"name\":\"name4\",\"folder\":true,\"children\":[]}]}\n] }"));
}

QTEST_MAIN(TutorialItemListModelTest)
#include "tst_TutorialItemListModel.moc"
