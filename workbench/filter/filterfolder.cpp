#include "filter/filterfolder.h"

#include "filter/filterjson.h"
#include "ut/names.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSaveFile>

#include <algorithm>
#include <utility>

namespace workbench {
namespace {
constexpr qint64 largestFile = 4 * 1024 * 1024;
// A file may change twice within one tick of the disk's clock, so a stamp younger than this proves nothing.
constexpr qint64 coarsestTick = 2000;
constexpr int longestWords = 40;
constexpr int hashLength = 32;

const QString nameKey = QStringLiteral("name");

/// The name as a file can hold it: half of a surrogate pair isn't a character.
QString storableName(const QString& name)
{
    return QString::fromUtf8(name.toUtf8());
}

QString fileNameOf(const QString& name)
{
    static const QRegularExpression others(QStringLiteral("[^a-z0-9]+"));
    const QByteArray hash = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256).toHex();
    // The words are for people who look into the folder, the hash tells the names apart.
    const QString words = name.toLower().split(others, Qt::SkipEmptyParts).join(u'-').left(longestWords);
    return (words.isEmpty() ? QStringLiteral("filter") : words) + u'-' + QLatin1String(hash.left(hashLength)) +
           QStringLiteral(".json");
}

QStringList naturallySorted(const QStringList& names)
{
    std::vector<std::pair<std::wstring, QString>> keyed;
    for (const QString& name : names)
        keyed.emplace_back(name.toStdWString(), name);
    std::sort(keyed.begin(), keyed.end(), [](const auto& left, const auto& right) {
        return ut::strCmpAlphanum(left.first.c_str(), right.first.c_str(), 0) < 0;
    });
    QStringList sorted;
    for (const auto& [key, name] : keyed)
        sorted.append(name);
    return sorted;
}

QString nearestFolder(QString path)
{
    while (!QFileInfo(path).isDir() && !QDir(path).isRoot())
        path = QFileInfo(path).absolutePath();
    return path;
}
} // namespace

FilterFolder::FilterFolder(QString folder, Tell tell)
    : m_folder(QDir(std::move(folder)).absolutePath()), m_tell(std::move(tell))
{
    m_changeTimer.setSingleShot(true);
    connect(&m_changeTimer, &QTimer::timeout, this, &FilterFolder::tellChange);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FilterFolder::tellChange);
    scan();
    m_toldNames = m_names;
}

QStringList FilterFolder::names()
{
    scan();
    // Later, because a page may be reading the names in order to show them.
    if (m_names != m_toldNames)
        m_changeTimer.start();
    return m_names;
}

std::optional<QJsonObject> FilterFolder::read(const QString& name)
{
    const QFileInfo file(pathOf(name));
    if (!file.exists())
        return {};
    m_entries[file.fileName()] = entryOf(file);
    return readFile(file);
}

bool FilterFolder::write(const QString& name, QJsonObject filter)
{
    const QString path = pathOf(name);
    if (QFileInfo::exists(path) && !read(name) && !keepAside(path))
        return false;
    filter[nameKey] = storableName(name);
    QDir().mkpath(m_folder);
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(filter).toJson());
        if (file.commit())
            return true;
    }
    tell(tr("The filter \"%1\" can't be saved: %2").arg(name, file.errorString()));
    return false;
}

void FilterFolder::remove(const QString& name)
{
    QFile file(pathOf(name));
    if (read(name) && !file.remove())
        tell(tr("The filter \"%1\" can't be removed: %2").arg(name, file.errorString()));
}

void FilterFolder::tell(const QString& message) const
{
    if (m_tell)
        m_tell(message);
}

void FilterFolder::tellChange()
{
    scan();
    if (std::exchange(m_toldNames, m_names) != m_names)
        Q_EMIT changed();
}

QString FilterFolder::pathOf(const QString& name) const
{
    return m_folder + u'/' + fileNameOf(storableName(name));
}

void FilterFolder::watch()
{
    // As long as there is no folder, the one in which it will be made tells when another process makes it. The loop
    // sees a folder that was made before its parent was watched.
    for (QString path = nearestFolder(m_folder); !m_watcher.directories().contains(path);
         path = nearestFolder(m_folder)) {
        if (!m_watcher.directories().isEmpty())
            m_watcher.removePaths(m_watcher.directories());
        if (!m_watcher.addPath(path))
            return;
    }
}

void FilterFolder::scan()
{
    watch();
    QHash<QString, Entry> entries;
    QStringList found;
    for (QDirIterator files(m_folder, {QStringLiteral("*.json")}, QDir::Files); files.hasNext();) {
        files.next();
        const Entry entry = entryOf(files.fileInfo());
        entries.insert(files.fileName(), entry);
        if (entry.name)
            found.append(*entry.name);
    }
    m_entries = std::move(entries);
    if (found == m_found)
        return;
    m_names = naturallySorted(found);
    m_found = std::move(found);
}

FilterFolder::Entry FilterFolder::entryOf(const QFileInfo& file)
{
    const Stamp stamp{file.size(), file.lastModified(), file.metadataChangeTime()};
    const Entry former = m_entries.value(file.fileName());
    const bool isSame = former.stamp == stamp;
    if (isSame && std::max(stamp.modified, stamp.touched).msecsTo(former.read) > coarsestTick)
        return former;
    Entry entry{stamp, QDateTime::currentDateTimeUtc(), {}};
    if (const std::optional<QJsonObject> filter = readFile(file))
        entry.name = (*filter)[nameKey].toString();
    else if (!isSame || former.name) {
        // Later, because the message may be a dialog and a page may be reading the names.
        const QString message = tr("The file \"%1\" can't be read as a saved filter and is left as it is.")
                                    .arg(QDir::toNativeSeparators(file.filePath()));
        QMetaObject::invokeMethod(
            &m_changeTimer, [this, message] { tell(message); }, Qt::QueuedConnection);
    }
    return entry;
}

std::optional<QJsonObject> FilterFolder::readFile(const QFileInfo& info) const
{
    QFile file(info.filePath());
    if (info.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject filter = QJsonDocument::fromJson(file.read(largestFile)).object();
    const int fileVersion = filter[versionKey].toInt();
    const QJsonValue name = filter[nameKey];
    // A filter under another one's file name would be written over by that one.
    const bool isFilter = fileVersion >= 1 && name.isString() && fileNameOf(name.toString()) == info.fileName() &&
                          (fileVersion > version || isFilterJson(filter[conjunctionsKey]));
    return isFilter ? std::optional(filter) : std::nullopt;
}

bool FilterFolder::keepAside(const QString& path)
{
    QString aside = path + QStringLiteral(".damaged");
    for (int number = 2; QFileInfo::exists(aside); ++number)
        aside = path + QStringLiteral(".damaged%1").arg(number);
    QFile file(path);
    const bool isKept = file.rename(aside);
    tell(isKept ? tr("A file that can't be read as a saved filter stood in the way. It is kept as \"%1\".")
                      .arg(QDir::toNativeSeparators(aside))
                : tr("The file \"%1\" stands in the way of the filter: %2")
                      .arg(QDir::toNativeSeparators(path), file.errorString()));
    return isKept;
}
} // namespace workbench
