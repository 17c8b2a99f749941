#include "Tutorial/translation/DocumentTranslator.h"

DocumentTranslator::DocumentTranslator(QObject *parent) : QTranslator(parent) { }

void DocumentTranslator::setMessages(const QHash<QString, TranslationSource::Messages> &messages)
{
    mMessages = messages;
}

void DocumentTranslator::setOwnContext(const QString &context)
{
    mOwnContext = context;
}

bool DocumentTranslator::isEmpty() const
{
    return mMessages.isEmpty() && mOwnContext.isEmpty();
}

QString DocumentTranslator::translate(const char *context, const char *sourceText, const char *disambiguation,
                                      int n) const
{
    Q_UNUSED(disambiguation)
    Q_UNUSED(n)
    const QString contextName = QString::fromUtf8(context);
    const QString source = QString::fromUtf8(sourceText);
    const bool own = !mOwnContext.isEmpty() && contextName == mOwnContext;
    const auto messages = mMessages.constFind(contextName);
    if (messages != mMessages.constEnd()) {
        const auto translation = messages->constFind(source);
        if (translation != messages->constEnd() && !translation->isEmpty())
            return *translation;
        // A writer may leave a hint empty: an empty text is an answer, a null one is none. Elsewhere
        // it stands for a source text that needs no translation.
        if (translation != messages->constEnd() && own)
            return QStringLiteral("");
    }
    return own ? source : QString();
}
