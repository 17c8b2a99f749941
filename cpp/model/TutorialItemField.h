#pragma once

#include <QString>
#include <QVariant>

#include <variant>
#include <vector>

class QJsonObject;
class QJsonValue;
class TutorialItemData;

/// One field of an item's record: all that the program needs to know to read, write, copy and edit it.
///
/// The table is the only list of the fields. A new field of a step is a member with its getter and
/// setter in TutorialItemData, and a row of the table.
struct TutorialItemField
{
    using Member = std::variant<int TutorialItemData::*, QString TutorialItemData::*, bool TutorialItemData::*>;

    /// What kind of item has the field in a scenario file. The rest keeps the default.
    enum class Owner {
        Item, ///< steps and folders
        Step, ///< steps alone
        StepOrOlderFolder, ///< steps; a folder's is read but no longer written
    };

    /// How the value stands in a scenario file.
    enum class Form {
        Value,
        Hint, ///< a translation call with the item's key
        Nowhere, ///< in the second language's translation file alone
    };

    /// The property name, which is also the key in JSON texts and in files.
    QString name;
    Member member;
    Owner owner = Owner::Step;
    Form form = Form::Value;
    /// An older name in files, read where the name is absent; empty if there is none.
    QString olderName = {};

    /// All fields, in the order of JSON texts and scenario files.
    static const std::vector<TutorialItemField> &all();
    /// Null for an unknown name.
    static const TutorialItemField *find(const QString &name);
    static const TutorialItemField &find(const Member &member);

    QVariant read(const TutorialItemData &record) const;
    /// The value as the field's own type, by the conversions of QVariant.
    QVariant convert(const QVariant &value) const;
    /// Writes past the history, converted.
    void write(TutorialItemData &record, const QVariant &value) const;
    /// Whether the field can hold the value as it is.
    bool isKept(const QJsonValue &value) const;
    void copy(TutorialItemData &record, const TutorialItemData &other) const;
    /// Appends the value as JSON.
    void appendJson(QString &json, const TutorialItemData &record) const;
    /// Takes the value over if the object has it. A value of another type gives 0, an empty
    /// text or false. The result is whether the record now holds all that the object says of the field.
    bool readJson(TutorialItemData &record, const QJsonObject &object) const;
};
