#pragma once

#include <QJSEngine>
#include <QObject>
#include <QQmlEngine>

/// The QML singleton for the language of the screens, see InterfaceTranslator. A language that is chosen is theirs from
/// the next start on: to read texts anew the engine would read all else anew with them, what a writer has chosen too.
class InterfaceLanguage : public QObject
{
    Q_OBJECT
    /// "ja" or "en": that of the next start, which need not be the one that the command line has chosen for this one.
    Q_PROPERTY(QString chosen READ chosen NOTIFY chosenChanged)

public:
    /// The provider of the singleton. The caller owns the object.
    static QObject *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    QString chosen() const { return mChosen; }
    /// Stores the language. The result tells in that language from when on it is that of the screens; it is empty if
    /// nothing changes. Where the language can't be stored, the result says so and all stays as it was.
    Q_INVOKABLE QString choose(const QString &language);

Q_SIGNALS:
    void chosenChanged();

private:
    InterfaceLanguage();

    QString mChosen;
};
