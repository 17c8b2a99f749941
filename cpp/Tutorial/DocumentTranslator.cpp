#include "Tutorial/DocumentTranslator.h"

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
    const auto messages = mMessages.constFind(contextName);
    if (messages != mMessages.constEnd()) {
        const auto translation = messages->constFind(source);
        if (translation != messages->constEnd()) {
            // An empty text is an answer, a null one is none.
            return translation->isNull() ? QStringLiteral("") : *translation;
        }
    }
    return contextName == mOwnContext && !mOwnContext.isEmpty() ? source : QString();
}
