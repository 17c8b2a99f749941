#include "AuthoringTest.h"

#include "Tutorial/translation/TranslationXml.h"

/// The hints of both languages side by side, with a writer who has no mouse.
class tst_Translation : public AuthoringTest
{
    Q_OBJECT

private Q_SLOTS:
    void translatesWithoutTheMouse()
    {
        QVector<TranslationSource::Entry> hints;
        TranslationSource::Messages expected{ { hintKey(2), QStringLiteral("done") } };
        for (int id = 1; id <= kHints + 2; ++id)
            hints.append({ hintKey(id), QStringLiteral("first %1").arg(id) });
        load(QStringLiteral("1 2 3[4 5] ") + longShape(kHints + 2).section(QLatin1Char(' '), 5));
        loadHints(hints, { { hintKey(2), QStringLiteral("done") } });
        selectInTree(1);
        QVERIFY(showTranslation());
        key(Qt::CTRL + Qt::Key_2);
        QCOMPARE(rows()->rowCount(), kHints);
        const QKeySequence ways[] = { Qt::CTRL + Qt::Key_Return, Qt::CTRL + Qt::Key_Down, Qt::Key_F3 };
        int count = 0;
        for (int id = 1; id <= kHints + 2; ++id) {
            // The second one is done, the third one a folder.
            if (id == 2 || id == 3)
                continue;
            const QString text = QStringLiteral("Words of %1\nin two lines").arg(id);
            write(text);
            expected.insert(hintKey(id), text);
            if (++count < kHints)
                key(ways[count % 3]);
        }
        QCOMPARE(count, kHints);
        // The last one is still being typed.
        key(Qt::CTRL + Qt::Key_S);
        QTRY_VERIFY(!managerInstance->isModified());
        QCOMPARE(readHints(kEnglish), expected);
        QCOMPARE(readHints(kJapanese).size(), kHints + 2);

        // One history for both windows; a step back is shown where it is.
        key(Qt::CTRL + Qt::Key_Home);
        key(Qt::CTRL + Qt::Key_Z);
        QCOMPARE(record(kHints + 2)->mHint2, hintKey(kHints + 2));
        QCOMPARE(editorText(), hintKey(kHints + 2));
        key(Qt::CTRL + Qt::Key_Y);
        QCOMPARE(editorText(), expected.value(hintKey(kHints + 2)));
        key(Qt::CTRL + Qt::Key_2);
        QCOMPARE(rows()->rowCount(), 0);
        // Without a cell the keys are the window's, and those of the main window are where they were.
        key(Qt::CTRL + Qt::Key_Z);
        QCOMPARE(record(kHints + 2)->mHint2, hintKey(kHints + 2));
        window()->close();
        QVERIFY(activate());
        press(Qt::Key_Up);
        QTRY_COMPARE(currentId(), kHints + 1);
    }
    void followsTheDocument()
    {
        load(QStringLiteral("1 2[3] 4"));
        loadHints({ { hintKey(1), QStringLiteral("a") }, { hintKey(3), QStringLiteral("c") } },
                  { { hintKey(1), QStringLiteral("A") }, { hintKey(3), QStringLiteral("c") } });
        QVERIFY(showTranslation());
        key(Qt::CTRL + Qt::Key_1);
        QAbstractItemModelTester tester(rows());
        QCOMPARE(rows()->rowCount(), 3);
        QVERIFY(isSigned("missing") && isSigned("same") && !isSigned("stale"));

        // What is given up leaves no step; what is handed over makes the other hint stale.
        key(Qt::CTRL + Qt::Key_Home);
        key(Qt::Key_Left);
        QCOMPARE(editorText(), QStringLiteral("a"));
        write(QStringLiteral("x"));
        key(Qt::Key_Escape);
        key(Qt::Key_Tab);
        QVERIFY(!managerInstance->isModified() && editorText() == QLatin1String("A"));
        key(Qt::Key_Backtab);
        key(Qt::Key_F2);
        write(QStringLiteral("a"));
        key(Qt::Key_Tab);
        QCOMPARE(record(1)->mHint, QStringLiteral("aa"));
        QTRY_VERIFY(isSigned("stale"));
        key(Qt::CTRL + Qt::Key_Z);
        QTRY_VERIFY(!isSigned("stale"));
        key(Qt::CTRL + Qt::Key_Y);
        QTRY_VERIFY(isSigned("stale"));
        key(Qt::CTRL + Qt::Key_3);
        QCOMPARE(rows()->rowCount(), 1);
        key(Qt::Key_F7);
        QTRY_VERIFY(!isSigned("stale"));
        key(Qt::CTRL + Qt::Key_1);
        key(Qt::CTRL + Qt::Key_F);
        write(QStringLiteral("C"));
        QCOMPARE(rows()->rowCount(), 1);
        key(Qt::Key_Escape);
        QCOMPARE(rows()->rowCount(), 3);

        // A click goes into the text.
        click(find(window()->contentItem(), QStringLiteral("aa")));
        key(Qt::Key_End);
        write(QStringLiteral("x"));
        key(Qt::Key_Tab);
        QCOMPARE(record(1)->mHint, QStringLiteral("aax"));
        key(Qt::CTRL + Qt::Key_Z);

        // Rows come and go with the items, and what is typed in one window is shown in the other.
        QVERIFY(activate());
        select(1);
        typeInto("hint2.edit", QStringLiteral("typed"));
        QTRY_COMPARE(rows()->index(0, 0).data(Qt::UserRole + 4).toString(), QStringLiteral("typed"));
        evaluate(QStringLiteral("settingScreen.addItem(1)"));
        QTRY_COMPARE(rows()->rowCount(), 4);
        undo();
        QTRY_COMPARE(rows()->rowCount(), 3);
        evaluate(QStringLiteral("settingScreen.deleteIdList([2])"));
        QTRY_COMPARE(rows()->rowCount(), 2);

        // A word that stands typed is saved from wherever that is asked for.
        select(1);
        QVERIFY(showTranslation());
        key(Qt::Key_Left);
        write(QStringLiteral("half"));
        QCOMPARE(record(1)->mHint, QStringLiteral("aa"));
        evaluate(QStringLiteral("saveTutorial()"));
        QCOMPARE(readHints(kJapanese).value(hintKey(1)), QStringLiteral("half"));
        QVERIFY(readAll(kEnglish).contains("unfinished\">typed<"));
        window()->close();
    }
    // Not every input method hands over what it composes when it is asked to.
    void composedLettersStayInTheirField()
    {
        const auto hint = [] { return record(1)->mHint; };
        load(QStringLiteral("1 2"));
        loadHints({ { hintKey(1), QStringLiteral("ac") } }, { { hintKey(1), QStringLiteral("AC") } });
        selectInTree(1);
        press(Qt::Key_F2);
        compose("name");
        click(2);
        QTRY_COMPARE(currentId(), 2);
        QCOMPARE(record(1)->mName, QStringLiteral("name"));
        select(1);
        click(item("condition"));
        compose("word");
        const QPointer<QObject> left = QGuiApplication::focusObject();
        press(Qt::Key_Tab);
        // Some do it only now.
        compose("", "word", left);
        QCOMPARE(shown("condition"), QStringLiteral("clickword"));
        QCOMPARE(record(1)->mCondition, shown("condition"));
        QVERIFY(!left->property("cursorVisible").toBool());

        // The mouse moves the cursor and not the letters, and typing goes on where a step was taken back.
        click(item("hint.edit"));
        compose("e");
        QTest::mouseClick(mWindow, Qt::LeftButton, Qt::NoModifier, item("hint")->mapToScene({ 3, 8 }).toPoint());
        QCOMPARE(hint(), QStringLiteral("ace"));
        press(Qt::Key_Right);
        type(QStringLiteral("b"));
        undo();
        type(QStringLiteral("d"));
        QCOMPARE(hint(), QStringLiteral("adce"));

        // What letters take the place of counts until they come, and is one step with them.
        press(QKeySequence::SelectAll);
        compose("k");
        QCOMPARE(hint(), QStringLiteral("adce"));
        compose("", "key");
        undo();
        QCOMPARE(hint(), QStringLiteral("adce"));
        press(QKeySequence::SelectAll);
        compose("k");
        compose("");
        QTRY_COMPARE(hint(), QString());

        QVERIFY(showTranslation());
        key(Qt::CTRL + Qt::Key_1);
        click(find(window()->contentItem(), QStringLiteral("AC")));
        compose("cell");
        click(find(window()->contentItem(), hintKey(2)));
        QVERIFY(record(1)->mHint2.contains(QLatin1String("cell")) && !editorText().contains(QLatin1String("cell")));
        compose("end");
        window()->close();
        QCOMPARE(record(2)->mHint, hintKey(2) + QStringLiteral("end"));
    }

private:
    static constexpr int kHints = 25;

    static QString hintKey(int id) { return QStringLiteral("#%1").arg(id); }
    static QString context() { return QFileInfo(kTutorial).baseName(); }
    static void writeHints(const QString &path, const QVector<TranslationSource::Entry> &entries)
    {
        QDomDocument document = TranslationSource::emptyDocument(QFileInfo(path).baseName());
        TranslationSource::writeMessages(document, context(), entries);
        writeAll(path, document.toByteArray(4));
    }
    void loadHints(const QVector<TranslationSource::Entry> &first, const QVector<TranslationSource::Entry> &second)
    {
        writeHints(kJapanese, first);
        writeHints(kEnglish, second);
        QCOMPARE(managerInstance->reload(), QString());
        settle();
    }
    static TranslationSource::Messages readHints(const QString &path)
    {
        QDomDocument document;
        TranslationXml::parse(readAll(path), document);
        return TranslationSource::readMessages(document).value(context());
    }

    static QQuickWindow *window() { return visibleWindow("TranslationWindow"); }
    static QQuickItem *list() { return window()->findChild<QQuickItem *>(QStringLiteral("hintRows")); }
    static QAbstractItemModel *rows() { return list()->property("model").value<QAbstractItemModel *>(); }
    static QString editorText()
    {
        return window()->findChild<QObject *>(QStringLiteral("hintEditor.edit"))->property("text").toString();
    }
    static void key(const QKeySequence &keys)
    {
        const int code = keys[0];
        QTest::keyClick(window(), Qt::Key(code & ~Qt::KeyboardModifierMask),
                        Qt::KeyboardModifiers(code & Qt::KeyboardModifierMask));
    }
    static void write(const QString &text)
    {
        for (const QChar character : text)
            character == QLatin1Char('\n') ? key(Qt::Key_Return) : QTest::keyClick(window(), character.toLatin1());
    }
    /// Shows letters in a field, and hands others over.
    static void compose(const char *letters, const char *text = "", QObject *field = QGuiApplication::focusObject())
    {
        QInputMethodEvent event(QLatin1String(letters), {});
        event.setCommitString(QLatin1String(text));
        QCoreApplication::sendEvent(field, &event);
    }
    /// Whether a row that is in view has that sign.
    static bool isSigned(const char *sign) { return find(window()->contentItem(), QLatin1String(sign)) != nullptr; }
    /// By the key of the menu, from the main window.
    bool showTranslation()
    {
        press(Qt::Key_F9);
        return QTest::qWaitFor([] { return window() && window()->isActive(); });
    }
};

AUTHORING_TEST_MAIN(tst_Translation)
#include "tst_Translation.moc"
