#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

class QFile;

/// Functions on files, paths and lists, and the allocators of unique ids and names.
///
/// A failure is a warning in the log and a false result.
class DataSupport
{
public:
    DataSupport() = delete;

    /// The most bytes of what is read as a whole: a file, or a record of the host editor.
    static constexpr int kMostBytes = 64 * 1024 * 1024;

    /// Opens a file that is to be read as a whole. A folder, and a device or a pipe, whose bytes may have no end or
    /// never come, can't be opened, nor can a file that is too large.
    static bool openWhole(QFile &file);
    /// The whole file; bytes is left alone when the file can't be opened.
    static bool readFile(const QString &path, QByteArray &bytes);
    /// Whether the text that was read from the bytes has replacement characters for what could not be read.
    static bool isDamaged(const QString &text, const QByteArray &bytes);
    /// Writes a new file beside the old one and puts it in its place, so that a failure, a crash or a power cut leaves
    /// the old one whole; the disk has the new one when it returns. Symbolic links are followed and permissions kept.
    /// Where the folder refuses a new file, and for what is no regular file, it writes in place: a failure puts the old
    /// contents back, and only a crash can leave a part. Where the disk is at fault or full, it fails.
    static bool writeFile(const QString &path, const QByteArray &bytes);
    /// Replaces the destination. At every moment one complete file stands under the destination's
    /// name or under that with ".tmp2" appended.
    static bool copyFile(const QString &source, const QString &destination);
    /// Makes the last level of the path; its parent must exist.
    static bool mkdir(const QString &path);
    /// Makes all levels of the path that are missing; the disk has them when it returns.
    static bool mkpath(const QString &path);
    /// Removes a folder with all in it. The first failure stops it; what is removed by then stays so.
    static bool rmdir(const QString &path);
    /// Removes the file, a write-protected one too. A failure leaves no line in the log.
    static bool removeFile(const QString &path);
    static bool fileExists(const QString &path);

    static QString getPath(const QString &path);
    static QString getAbsolutePath(const QString &path);
    static QString getSuffix(const QString &path);
    /// The path with that suffix, told without its dot, in place of its own.
    static QString changeSuffix(const QString &path, const QString &suffix);
    /// Whether the path begins with a slash or a drive letter, on every platform.
    static bool isAbsolutePath(const QString &path);
    /// Whether the name, in whatever folder, is that of a file in it, on every platform.
    static bool isFileName(const QString &name);
    static QString getIconPath(const QString &name);
    static QString getResourcePath(const QString &name);

    static QStringList getStringList(const QList<int> &numbers);
    static QStringList getStringList(const QList<double> &numbers);
    static QList<int> getIntList(const QVariantList &values);
    static QList<int> getIntList(const QStringList &texts);
    static QVariantList getVariantList(const QList<int> &numbers);
    static QString join(const QList<int> &numbers, const QString &separator);

    /// Typed reads; the fallback is returned when the key is absent.
    static bool getBool(const QVariantMap &map, const QString &key, bool fallback);
    static int getInt(const QVariantMap &map, const QString &key, int fallback);

    /// The smallest number from firstId up that is not in ids.
    static int getUniqueId(const QList<int> &ids, int firstId);
    /// A name that is not in names: the base with the number after the highest one in use.
    ///
    /// With digits from 0 up the number follows the base, zero-padded to that many places. With -1
    /// and -2 it stands in round brackets, and -1 leaves a base that is free as it is.
    static QString getUniqueName(const QStringList &names, const QString &base, int digits);
};

/// Where the file of the program's data with that relative path can be read.
QString getExistsFilename(const QString &path);
