#pragma once

#include <QString>
#include <QVector>

#include <random>

/// One operation of a random session. What its numbers stand for depends on the document when it
/// runs, so that a list stays a list when operations are left out.
struct Operation
{
    enum Kind {
        AddItem,
        AddFolder,
        Rename,
        MoveBefore,
        MoveInto,
        Delete,
        SetProperty,
        SetProhibited,
        Copy,
        Paste,
        Select,
        BeginSequence,
        EndSequence,
        BeginSingle,
        EndSingle,
        SetUnmergeable,
        Undo,
        Redo,
        Save,
        ClearHistory,
        ClearDocument,
        KindCount
    };

    QString text() const
    {
        static const char *const names[] = {
            "AddItem",       "AddFolder",      "Rename", "MoveBefore", "MoveInto",      "Delete",       "SetProperty",
            "SetProhibited", "Copy",           "Paste",  "Select",     "BeginSequence", "EndSequence",  "BeginSingle",
            "EndSingle",     "SetUnmergeable", "Undo",   "Redo",       "Save",          "ClearHistory", "ClearDocument"
        };
        return QStringLiteral("{ Operation::%1, %2, %3, %4 }").arg(QLatin1String(names[kind])).arg(a).arg(b).arg(c);
    }

    Kind kind;
    unsigned a;
    unsigned b;
    unsigned c;
};

inline QVector<Operation> randomOperations(unsigned seed, int count)
{
    static constexpr int weights[] = { 14, 6, 6, 8, 8, 8, 16, 4, 4, 6, 3, 6, 8, 6, 8, 2, 16, 10, 4, 1, 1 };
    static_assert(sizeof(weights) / sizeof(weights[0]) == Operation::KindCount, "one weight for each kind");
    std::mt19937 random(seed);
    std::discrete_distribution<int> kinds(std::begin(weights), std::end(weights));
    std::uniform_int_distribution<unsigned> numbers(0, 999);
    QVector<Operation> operations;
    for (int i = 0; i < count; ++i) {
        const auto kind = static_cast<Operation::Kind>(kinds(random));
        const unsigned a = numbers(random);
        const unsigned b = numbers(random);
        operations.append({ kind, a, b, numbers(random) });
    }
    return operations;
}
