// The two languages, which are the translation's to keep.

#include "Tutorial/translation/TutorialTranslation.h"
#include "Tutorial/TutorialManager.h"

QString TutorialManager::applyTranslation(const QString &context, const QString &sourceText) const
{
    return mTranslation->applyTranslation(context, sourceText);
}

QString TutorialManager::translate(const QString &key) const
{
    return mTranslation->translate(key);
}

QString TutorialManager::applyTranslationToText(const QString &text, QStringList &errors) const
{
    return mTranslation->applyTranslationToText(text, errors);
}

QString TutorialManager::parseStringExpression(const QString &text, const QString &context, QString &rest,
                                               QStringList &errors) const
{
    return mTranslation->parseStringExpression(text, context, rest, errors);
}

QString TutorialManager::locale() const
{
    return mTranslation->locale();
}

QString TutorialManager::locale2() const
{
    return mTranslation->locale2();
}

void TutorialManager::setLocale(const QString &locale)
{
    mTranslation->setLocale(locale);
}

void TutorialManager::setLocale2(const QString &locale)
{
    mTranslation->setLocale2(locale);
}

bool TutorialManager::loadTranslation()
{
    return mTranslation->loadTranslation();
}

bool TutorialManager::saveTranslation()
{
    return mTranslation->saveTranslation();
}

bool TutorialManager::feedbackTranslation()
{
    return mTranslation->feedbackTranslation();
}
