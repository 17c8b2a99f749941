#include "SystemService/SystemService.h"

#include "tool/DataSupport.h"
#include "tool/Log.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTextStream>
#include <QUrl>

#include <limits>

namespace
{
const QLatin1String kDebugLocaleKey("debugLocale");
const QLatin1String kDevelopPortFixedKey("developPortFixed");
const QLatin1String kDevelopPortKey("developPort");
const QLatin1String kPlayerPathnameKey("playerPathname");
const QLatin1String kRuntimePathnameKey("runtimePathname");
const QLatin1String kReducedMotionKey("reducedMotion");

SystemService *systemServiceInstance = nullptr;

QVariant readSetting(const QString &key, const QVariant &fallback)
{
    return QSettings().value(key, fallback);
}

void writeSetting(const QString &key, const QVariant &value)
{
    QSettings().setValue(key, value);
}

QString documentsPath()
{
    return QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation).value(0);
}
} // namespace

QObject *SystemService::create(QQmlEngine *engine, QJSEngine *scriptEngine)
{
    systemServiceInstance = new SystemService(engine, scriptEngine);
    return systemServiceInstance;
}

SystemService *SystemService::instance()
{
    return systemServiceInstance;
}

SystemService::SystemService(QQmlEngine *engine, QJSEngine *scriptEngine) : mEngine(engine), mScriptEngine(scriptEngine)
{ }

SystemService::~SystemService()
{
    if (systemServiceInstance == this)
        systemServiceInstance = nullptr;
    Log::debug("cpp/SystemService", "SystemService::~SystemService", __LINE__);
}

void SystemService::openDesktopBrowser(const QString &url)
{
    QDesktopServices::openUrl(QUrl(url));
}

void SystemService::openDesktopFolder(const QString &folder)
{
    openDesktopBrowser(getUrlFromLocalFile(folder));
}

QString SystemService::getDefaultOutputPath()
{
    const QString documents = documentsPath();
    if (documents.isEmpty())
        return QString();
    const QString name = QStringLiteral("Output");
    QString path = documents + QLatin1Char('/') + name;
    if (!QFileInfo::exists(path))
        QDir(documents).mkdir(name);
    return path;
}

QString SystemService::getDefaultMaterialPath()
{
    const QString documents = documentsPath();
    if (documents.isEmpty())
        return QString();
    return QFileInfo(documents + QLatin1String("/..")).absoluteFilePath();
}

QString SystemService::getUrlFromLocalFile(const QString &file)
{
    return QUrl::fromLocalFile(file).toString();
}

QString SystemService::getLocalFileFromUrl(const QString &url)
{
    return QUrl(url).toLocalFile();
}

QString SystemService::getApplicationPath()
{
    return QCoreApplication::applicationDirPath();
}

QStringList SystemService::getStyleList()
{
    return { QStringLiteral("Default"), QStringLiteral("Material"), QStringLiteral("Universal") };
}

bool SystemService::fileExists(const QString &path)
{
    return DataSupport::fileExists(path);
}

bool SystemService::dirEmpty(const QString &path)
{
    return QDir(path).count() < 3; // "." and ".."
}

bool SystemService::isDir(const QString &path)
{
    return QFileInfo(path).isDir();
}

QString SystemService::loadFile(const QString &filename)
{
    QFile file(filename);
    if (!file.open(QFile::ReadOnly)) {
        Log::warning("cpp/SystemService", "SystemService::loadFile", __LINE__) << "failed to read" << filename;
        return QString();
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    return stream.readAll();
}

QString SystemService::getBase64FromFile(const QString &filename)
{
    QFile file(filename);
    if (!file.open(QFile::ReadOnly)) {
        Log::warning("cpp/SystemService", "SystemService::getBase64FromFile", __LINE__) << "failed to read" << filename;
        return QString();
    }
    // The most whose text a string has room for, with a little left for its own needs.
    constexpr qint64 limit = (std::numeric_limits<int>::max() / qint64(sizeof(QChar)) - 64) / 4 * 3;
    if (file.size() > limit) {
        Log::warning("cpp/SystemService", "SystemService::getBase64FromFile", __LINE__)
            << "file too large" << filename << file.size();
        return QString();
    }
    QByteArray bytes(static_cast<int>(file.size()), Qt::Uninitialized);
    QDataStream stream(&file);
    if (stream.readRawData(bytes.data(), bytes.size()) < bytes.size())
        return QString();
    return QString::fromLatin1(bytes.toBase64());
}

QString SystemService::getFilenameBase(const QString &filename)
{
    return QFileInfo(filename).baseName();
}

QString SystemService::getPlayerPathname()
{
    return readSetting(kPlayerPathnameKey, QString()).toString();
}

void SystemService::setPlayerPathname(const QString &pathname)
{
    writeSetting(kPlayerPathnameKey, pathname);
}

QString SystemService::getRuntimePathname()
{
    return readSetting(kRuntimePathnameKey, QString()).toString();
}

void SystemService::setRuntimePathname(const QString &pathname)
{
    writeSetting(kRuntimePathnameKey, pathname);
}

QString SystemService::getReducedMotion()
{
    return readSetting(kReducedMotionKey, QString()).toString();
}

QString SystemService::getDefaultLocale()
{
    return QStringLiteral("ja_JP");
}

QString SystemService::getDebugLocale()
{
    return readSetting(kDebugLocaleKey, getDefaultLocale()).toString();
}

void SystemService::setDebugLocale(const QString &locale)
{
    writeSetting(kDebugLocaleKey, locale);
}

QStringList SystemService::getDebugLocaleList()
{
    return { QStringLiteral("en_US"), QStringLiteral("ja_JP"), QStringLiteral("Raw"), QStringLiteral("-") };
}

QVariant SystemService::getDevelopPortInfo()
{
    return QVariantMap{ { QStringLiteral("portFixed"), readSetting(kDevelopPortFixedKey, false).toBool() },
                        { QStringLiteral("port"), readSetting(kDevelopPortKey, 1234).toInt() } };
}

void SystemService::setDevelopPortInfo(bool portFixed, int port)
{
    writeSetting(kDevelopPortFixedKey, portFixed);
    writeSetting(kDevelopPortKey, port);
}
