#pragma once

#include <QString>

/// What a screen reader says of a guidance window.
struct Speech
{
    QString name; ///< the text itself
    QString description; ///< what is drawn beside it

    bool isEmpty() const { return name.isEmpty(); }
    /// All of it, for a voice that takes one text.
    QString text() const;
};

/// The words for what a step draws.
namespace StepSpeech
{
/// What an icon asks the user to do, in the language of now; empty for a number that names none.
QString iconMeaning(int iconType);

/// A step in words. What is drawn stands for a hint that is empty.
/// \param targetKey the key of what the arrow points at; empty without an arrow
Speech ofStep(const QString &hint, int iconType, const QString &targetKey);
} // namespace StepSpeech
