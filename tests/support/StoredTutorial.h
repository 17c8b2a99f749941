#pragma once

#include "support/FileBytes.h"
#include "Tutorial/translation/TranslationSource.h"

#include <QJSEngine>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// Tutorials as others read them: by evaluating the script.
namespace StoredTutorial
{
/// The items of the script, folders before their contents, each hint's text in place of its key.
inline QList<QJsonObject> items(const QString &script, const QVariantMap &texts = {})
{
    QJSEngine engine;
    engine.globalObject().setProperty(QStringLiteral("texts"), engine.toScriptValue(texts));
    engine.evaluate(QStringLiteral("function qsTr(key) { return texts[key]; } var items = [];"
                                   "function collect(item) { var children = item.children || [];"
                                   "delete item.children; items.push(item); children.forEach(collect); }"));
    engine.evaluate(script);
    engine.evaluate(QStringLiteral("scenario.forEach(collect)"));
    const QString json = engine.evaluate(QStringLiteral("JSON.stringify(items)")).toString();
    QList<QJsonObject> items;
    for (const QJsonValue &item : QJsonDocument::fromJson(json.toUtf8()).array())
        items.append(item.toObject());
    return items;
}

/// The same of a tutorial in a folder, in that language.
inline QList<QJsonObject> items(const QString &folder, const QString &name, const QString &locale)
{
    QDomDocument catalog;
    catalog.setContent(readAll(folder + QStringLiteral("/translations/%1.ts").arg(locale)));
    const TranslationSource::Messages texts = TranslationSource::readMessages(catalog).value(name);
    QVariantMap hints;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        hints.insert(text.key(), text.value());
    return items(QString::fromUtf8(readAll(folder + QStringLiteral("/qml/Tutorial/%1.js").arg(name))), hints);
}
} // namespace StoredTutorial
