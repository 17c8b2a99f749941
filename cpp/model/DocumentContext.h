#pragma once

#include <QString>
#include <QStringList>

/// What the document and its history ask of the program round them. TutorialManager implements it;
/// a test stands in for it with a class of its own.
///
/// The last object made is the one that instance() gives, until it is destroyed.
class DocumentContext
{
public:
    /// The context in force, or null when there is none. Not owned by the caller.
    static DocumentContext *instance();

    /// The translation of a key under the loaded tutorial's context; the key itself when no
    /// installed translator knows it.
    virtual QString translate(const QString &key) const = 0;

    /// The text with each translation call replaced by a string literal. What could not be read is
    /// added to errors as translated messages.
    virtual QString applyTranslationToText(const QString &text, QStringList &errors) const = 0;

    /// Stores the text that the screens are told a little later, outside any undo command.
    virtual void setPendingJumpLink(const QString &linkInfo) = 0;

    virtual void setModified(bool modified) = 0;

protected:
    DocumentContext();
    virtual ~DocumentContext();

private:
    Q_DISABLE_COPY(DocumentContext)
};
