#pragma once

#include <QJSEngine>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QString>
#include <QStringList>
#include <QVariant>

/// The QML singleton for files, folders, URLs and the stored settings.
///
/// It keeps no state, so that the rest of the program calls its functions without an instance. All
/// settings go through a default-constructed QSettings: set the application's and the
/// organisation's name first.
class SystemService : public QQuickItem
{
    Q_OBJECT

public:
    /// The provider of the singleton. The caller owns the object.
    static QObject *create(QQmlEngine *engine, QJSEngine *scriptEngine);
    /// The instance that was made last; null while there is none.
    static SystemService *instance();
    ~SystemService() override;

    Q_INVOKABLE static void openDesktopBrowser(const QString &url);
    Q_INVOKABLE static void openDesktopFolder(const QString &folder);

    /// The folder "Output" in the documents folder, made if it isn't there; empty without a
    /// documents folder.
    Q_INVOKABLE static QString getDefaultOutputPath();
    /// The parent of the documents folder; empty without one.
    Q_INVOKABLE static QString getDefaultMaterialPath();
    Q_INVOKABLE static QString getUrlFromLocalFile(const QString &file);
    Q_INVOKABLE static QString getLocalFileFromUrl(const QString &url);
    Q_INVOKABLE static QString getApplicationPath();

    /// Constants of the build, told beside the entry point.
    Q_INVOKABLE static bool debug();
    Q_INVOKABLE static bool develop();

    Q_INVOKABLE static QStringList getStyleList();

    Q_INVOKABLE static bool fileExists(const QString &path);
    /// A missing folder counts as empty.
    Q_INVOKABLE static bool dirEmpty(const QString &path);
    Q_INVOKABLE static bool isDir(const QString &path);
    /// The whole file as text, read as UTF-8; empty with a warning in the log if it can't be opened.
    Q_INVOKABLE static QString loadFile(const QString &filename);
    /// The whole file in base64; empty with a warning in the log if it can't be opened or is too large.
    Q_INVOKABLE static QString getBase64FromFile(const QString &filename);
    /// The file's name without folder, and without all from its first dot on.
    Q_INVOKABLE static QString getFilenameBase(const QString &filename);

    Q_INVOKABLE static QString getPlayerPathname();
    Q_INVOKABLE static void setPlayerPathname(const QString &pathname);
    Q_INVOKABLE static QString getRuntimePathname();
    Q_INVOKABLE static void setRuntimePathname(const QString &pathname);

    /// Whether the guidance keeps from moving and fading: "yes", "no", or what the desktop says.
    static QString getReducedMotion();

    /// The locale that the program starts with, as long as no other was chosen.
    static QString getDefaultLocale();
    /// The language chosen by the user, one of getDebugLocaleList().
    Q_INVOKABLE static QString getDebugLocale();
    Q_INVOKABLE static void setDebugLocale(const QString &locale);
    Q_INVOKABLE static QStringList getDebugLocaleList();

    /// A map with "portFixed" (bool) and "port" (int).
    Q_INVOKABLE static QVariant getDevelopPortInfo();
    Q_INVOKABLE static void setDevelopPortInfo(bool portFixed, int port);

private:
    SystemService(QQmlEngine *engine, QJSEngine *scriptEngine);

    QPointer<QQmlEngine> mEngine;
    QPointer<QJSEngine> mScriptEngine;
};
