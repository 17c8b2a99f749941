#include "support/EditingSession.h"
#include "support/ModelRows.h"

#include <QAbstractItemModelTester>
#include <QtTest>

/// The fields that the rows show. How the rows follow the tree is a part of the random sessions.
class tst_TutorialItemListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheFields();
};

void tst_TutorialItemListModel::followsTheFields()
{
    EditingSession session;
    session.load(QStringLiteral("1[2 3[4] 5[]] 6 7[8]"));
    TutorialItemListModel model;
    const QAbstractItemModelTester tester(&model);
    session.sequence(QStringLiteral("edit"), [&] {
        model.setValue(1, QStringLiteral("prohibited"), true);
        model.setValue(6, QStringLiteral("jump"), 5);
        model.setValue(6, QStringLiteral("icon"), QStringLiteral("eye"));
        model.setValue(6, QStringLiteral("name"), QStringLiteral("new"));
    });
    QVERIFY(session.record(2)->mProhibited && session.record(4)->mProhibited && !session.record(8)->mProhibited);
    QVERIFY(!session.record(1)->mProhibited && !session.record(3)->mProhibited && !session.record(6)->mProhibited);
    QCOMPARE(ModelRows::difference(model), QString());
    session.history().undo();
    session.record(8)->mProhibited = true;
    model.refreshPartial();
    QVERIFY(!ModelRows::difference(model).isEmpty());
    model.refreshRoles();
    QCOMPARE(ModelRows::difference(model), QString());
}

QTEST_MAIN(tst_TutorialItemListModel)
#include "tst_TutorialItemListModel.moc"
