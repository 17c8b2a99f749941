#include "EditingSession.h"
#include "quick/TutorialItemListModel.h"
#include "support/ModelText.h"

#include <QAbstractItemModelTester>
#include <QtTest>

namespace
{
using Model = TutorialItemListModel;

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
    void refreshPartialFollows_data();
    void refreshPartialFollows();
    void refreshRolesIsRefresh();
    void setValueOfAFolder();
};

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
    QCOMPARE(modelText(session.model.getRootIndex()), modelText(Model().getRootIndex()));
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
    QCOMPARE(modelText(session.model.getRootIndex()), modelText(Model().getRootIndex()));
    QVERIFY(session.prohibited(4));
    session.history().undo();
    session.model.refreshPartial();
    QVERIFY(session.prohibited(1));
    session.model.refreshRoles();
    QVERIFY(!session.prohibited(1));
}

void TutorialItemListModelTest::setValueOfAFolder()
{
    ModelSession session(QStringLiteral("1[2 3[4] 5[]] 6"));
    session.model.setValue(1, QStringLiteral("prohibited"), true);
    QVERIFY(session.record(2)->mProhibited && session.record(4)->mProhibited);
    QVERIFY(!session.record(1)->mProhibited && !session.record(3)->mProhibited && !session.record(6)->mProhibited);
    QVERIFY(session.prohibited(1) && session.prohibited(3) && !session.prohibited(5) && !session.prohibited(-1));
}

QTEST_MAIN(TutorialItemListModelTest)
#include "tst_TutorialItemListModel.moc"
