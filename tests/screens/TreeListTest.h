#pragma once

#include "quick/DocumentFollower.h"
#include "TreeListFixture.h"

#include <QApplication>
#include <QLocale>
#include <QtQml>

const QString kDocument = QStringLiteral("1 2[3 4[5 6] 7] 8[] 9");

inline QString longDocument(int count)
{
    QString document;
    for (int id = 1; id <= count; ++id)
        document += QStringLiteral("%1 ").arg(id);
    return document;
}

/// A test of the tree list control, in which each complaint in the log is a fault.
class TreeListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { sFormerHandler = qInstallMessageHandler(keepComplaints); }
    void cleanupTestCase() { qInstallMessageHandler(sFormerHandler); }
    void init() { sComplaints.clear(); }
    void cleanup() { QCOMPARE(sComplaints, QStringList()); }

private:
    static void keepComplaints(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        // The offscreen platform says that of every popup, and the toolkit that of a window that goes
        // during an animation; the history notes its folder.
        const bool expected = message.startsWith(QLatin1String("This plugin does not support grabbing"))
            || message.startsWith(QLatin1String("QUnifiedTimer::stopAnimationDriver"))
            || message.startsWith(QLatin1String("cpp/UndoRedo UndoRedo::UndoRedo"));
        if (type != QtDebugMsg && type != QtInfoMsg && !expected)
            sComplaints.append(message);
        sFormerHandler(type, context, message);
    }

    static inline QStringList sComplaints;
    static inline QtMessageHandler sFormerHandler = nullptr;
};

template <typename Test>
int runTreeListTest(int argc, char **argv)
{
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale::c());
    qmlRegisterType<TutorialItemListModel>("Morvi.kess", 1, 0, "TutorialItemListModel");
    qmlRegisterType<DocumentFollower>("Morvi.kess", 1, 0, "DocumentFollower");
    qmlRegisterType<TreeListItemSelectionModel>("Morvi.kess", 1, 0, "TreeListItemSelectionModel");
    qmlRegisterSingletonType<UndoRedo>("Morvi.kess", 1, 0, "UndoRedo", [](QQmlEngine *, QJSEngine *) -> QObject * {
        QQmlEngine::setObjectOwnership(UndoRedo::instance(), QQmlEngine::CppOwnership);
        return UndoRedo::instance();
    });
    Test test;
    return QTest::qExec(&test, argc, argv);
}
