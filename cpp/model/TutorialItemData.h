#pragma once

#include "model/NameData.h"
#include "model/TutorialItemField.h"
#include "tool/JsonWrapper.h"

#include <QObject>
#include <QVariant>

/// The record of one tutorial item: a step, or a folder of steps. It holds what the step shows and
/// what it waits for. Owned by the document, or by an undo command while it is out of the document.
///
/// A setter with a value that differs makes an undo step while a transaction is open, and writes
/// its field directly otherwise. The fields are public for those that must write past the history:
/// the reader and the undo commands.
class TutorialItemData : public QObject, public NameData
{
    Q_OBJECT

public:
    /// The value of mX and mY of a step without a place on the screen.
    static constexpr int kNoPosition = -9999;

    explicit TutorialItemData(QObject *parent = nullptr);
    /// Copies the fields; the copy has no parent.
    TutorialItemData(const TutorialItemData &other);
    TutorialItemData &operator=(const TutorialItemData &) = delete;

    /// A new record from a JSON object, owned by the caller; null with a warning in the log when
    /// the JSON is no object. Kept becomes false where the record lacks what a key of a field says.
    static TutorialItemData *fromJson(const JsonWrapper &json, bool *kept = nullptr);

    /// The field of that property name, or an invalid variant with a warning for an unknown name.
    QVariant getValue(const QString &propertyName) const;
    /// Calls the setter of that property name; a warning for an unknown name.
    void setValue(const QString &propertyName, const QVariant &value);

    /// The record as JSON object text, with extra (if not empty) as a further entry at its end.
    QString toJsonText(const QString &extra) const;

    int getId() const { return mId; }
    QString getName() const { return mName; }
    int getX() const { return mX; }
    int getY() const { return mY; }
    QString getWindowKey() const { return mWindowKey; }
    QString getCondition() const { return mCondition; }
    QString getIcon() const { return mIcon; }
    QString getHint() const { return mHint; }
    QString getHint2() const { return mHint2; }
    int getJump() const { return mJump; }
    int getJumpNo() const { return mJumpNo; }
    QString getCommand() const { return mCommand; }
    bool getShowArrow() const { return mShowArrow; }
    bool getProhibited() const { return mProhibited; }

    void setName(const QString &name) override { change(&TutorialItemData::mName, name); }
    void setX(int x) { change(&TutorialItemData::mX, x); }
    void setY(int y) { change(&TutorialItemData::mY, y); }
    void setWindowKey(const QString &windowKey) { change(&TutorialItemData::mWindowKey, windowKey); }
    void setCondition(const QString &condition) { change(&TutorialItemData::mCondition, condition); }
    void setIcon(const QString &icon) { change(&TutorialItemData::mIcon, icon); }
    void setHint(const QString &hint) { change(&TutorialItemData::mHint, hint); }
    void setHint2(const QString &hint2) { change(&TutorialItemData::mHint2, hint2); }
    void setJump(int jump) { change(&TutorialItemData::mJump, jump); }
    void setJumpNo(int jumpNo) { change(&TutorialItemData::mJumpNo, jumpNo); }
    void setCommand(const QString &command) { change(&TutorialItemData::mCommand, command); }
    void setShowArrow(bool showArrow) { change(&TutorialItemData::mShowArrow, showArrow); }
    void setProhibited(bool prohibited) { change(&TutorialItemData::mProhibited, prohibited); }

    /// Position of the indicator in pixels, relative to the tracked window.
    int mX = kNoPosition;
    int mY = kNoPosition;
    /// Key of the host editor's window or control that the step is about.
    QString mWindowKey;
    /// What ends the step; the host editor's to read.
    QString mCondition;
    QString mIcon = QStringLiteral("click");
    /// The hint in the main language and in the second one.
    QString mHint;
    QString mHint2;
    /// Ids of the items to go to after this one, and after the answer No; -1 is the next item.
    int mJump = -1;
    int mJumpNo = -1;
    QString mCommand;
    bool mShowArrow = true;
    bool mProhibited = false;

private:
    void change(const TutorialItemField::Member &member, const QVariant &value)
    {
        change(TutorialItemField::find(member), value);
    }
    void change(const TutorialItemField &field, const QVariant &value);
};
