#pragma once

#include "Tutorial/translation/TranslationSource.h"

#include <QTranslator>

/// Answers lookups from a translation source document instead of a compiled catalog, so that a
/// tutorial writer sees what the document says, with no step between.
class DocumentTranslator : public QTranslator
{
    Q_OBJECT

public:
    explicit DocumentTranslator(QObject *parent = nullptr);

    void setMessages(const QHash<QString, TranslationSource::Messages> &messages);
    /// In this context an empty translation is an empty text, and nobody else is asked: a key that the document lacks
    /// stays a key, although another language's catalog may know it. Otherwise a save would write that language's text
    /// into this document.
    void setOwnContext(const QString &context);

    bool isEmpty() const override;
    /// Null for a text that this object leaves to the other translators.
    QString translate(const char *context, const char *sourceText, const char *disambiguation = nullptr,
                      int n = -1) const override;

private:
    QHash<QString, TranslationSource::Messages> mMessages;
    QString mOwnContext;
};
