#include "ut/settingsfile.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QStringDecoder>
#include <QTemporaryFile>
#include <QThread>

#include <algorithm>
#include <map>

namespace {
constexpr int lockTimeoutMs = 10000;
constexpr int lockPollMs = 2;
/// For the lock of a process that was killed before its name stood in it. Whoever lives keeps his for longer.
constexpr int staleLockMs = 1000;
constexpr QChar escapeSign = u'%'; // alone: an empty segment

/// QSettings drops empty segments of a path and takes a backslash for a slash on some systems.
QString fullKey(const QString& section, const QString& key)
{
    QStringList segments =
        QString(key).replace(escapeSign, QStringLiteral("%25")).replace(u'\\', QStringLiteral("%5C")).split(u'/');
    std::replace(segments.begin(), segments.end(), QString(), QString(escapeSign));
    return section + u'/' + segments.join(u'/');
}

QString segmentName(const QString& segment)
{
    if (segment == escapeSign)
        return QString();
    return QString(segment)
        .replace(QStringLiteral("%5C"), QStringLiteral("\\"))
        .replace(QStringLiteral("%25"), QStringLiteral("%"));
}

bool lockSoon(QLockFile& lock)
{
    // QLockFile's own waiting doubles its pauses up to seconds, which starves one of two busy writers.
    const QDeadlineTimer deadline(lockTimeoutMs);
    lock.setStaleLockTime(staleLockMs);
    while (!lock.tryLock(0)) {
        if (lock.error() != QLockFile::LockFailedError || deadline.hasExpired())
            return false;
        QThread::msleep(lockPollMs);
    }
    return true;
}

bool isControl(QChar c)
{
    return c < u' ' && c != u'\n' && c != u'\r' && c != u'\t';
}
} // namespace

SettingsFile::SettingsFile(const QString& path)
    : m_path(path), m_lock(path + QStringLiteral(".guard")) // QSettings takes ".lock" for itself, in each sync
{}

bool SettingsFile::isWritable()
{
    refresh();
    return m_settings->isWritable() && QFileInfo(QFileInfo(m_path).absolutePath()).isWritable();
}

std::optional<QString> SettingsFile::value(const QString& section, const QString& key)
{
    refresh();
    const QVariant value = m_settings->value(fullKey(section, key));
    // What a person typed with commas and without quotes is a list to QSettings.
    return value.canConvert<QStringList>() ? std::optional(value.toStringList().join(u',')) : std::nullopt;
}

QStringList SettingsFile::groups(const QString& section, QString key)
{
    refresh();
    QString parent = section;
    if (!key.isEmpty()) {
        if (key.endsWith(u'/'))
            key.chop(1);
        parent = fullKey(section, key);
    }
    m_settings->beginGroup(parent);
    QStringList names = m_settings->childGroups();
    m_settings->endGroup();
    std::transform(names.begin(), names.end(), names.begin(), segmentName);
    names.sort();
    return names;
}

bool SettingsFile::set(const QString& section, const QString& key, const std::optional<QString>& value)
{
    if (m_allSaved && this->value(section, key) == value)
        return true;
    return change([&] {
        if (value)
            m_settings->setValue(fullKey(section, key), *value);
        else
            removeOnly(fullKey(section, key));
    });
}

bool SettingsFile::removeGroup(const QString& section, const QString& key)
{
    refresh();
    const QString group = fullKey(section, key);
    const QStringList keys = m_settings->allKeys();
    if (std::none_of(keys.begin(), keys.end(),
                     [&group](const QString& entry) { return entry == group || entry.startsWith(group + u'/'); }))
        return false;
    change([&] { m_settings->remove(group); });
    return true;
}

bool SettingsFile::change(const std::function<void()>& edit)
{
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    const bool isLocked = lock();
    const auto unlock = qScopeGuard([this] { m_lock.unlock(); });
    if (!m_allSaved || m_stamp != currentStamp())
        load();

    edit();
    // QSettings must not save on its own, from the event loop: without the lock, and maybe over a damaged file.
    QCoreApplication::removePostedEvents(m_settings.get(), QEvent::UpdateRequest);
    m_allSaved = isLocked && m_stamp && save();

    static bool warned = false;
    if (!m_allSaved && !std::exchange(warned, true))
        qWarning("The settings in \"%s\" can't be written; changes last until the program ends.",
                 qUtf8Printable(m_path));
    return m_allSaved;
}

void SettingsFile::refresh()
{
    if (m_settings && m_stamp == currentStamp())
        return;
    // Without the lock, as in a folder that can't be written, the file is read all the same.
    lock();
    const auto unlock = qScopeGuard([this] { m_lock.unlock(); });
    load();
}

bool SettingsFile::lock()
{
    if (!lockSoon(m_lock))
        return false;
    // QSettings waits half a minute for the lock in which a killed process left no name: clear it away before.
    QLockFile ofSettings(m_path + QStringLiteral(".lock"));
    if (QFile::exists(ofSettings.fileName()))
        lockSoon(ofSettings);
    return true;
}

void SettingsFile::load()
{
    const Stamp stamp = currentStamp();
    const bool isGood = !isDamaged() || (m_lock.isLocked() && setAside());
    if (isGood || !m_settings) {
        // Opening it syncs it. A QSettings never forgets an error, so a new one takes over; both share what is pending.
        auto settings = std::make_unique<QSettings>(m_path, QSettings::IniFormat);
        m_settings = std::move(settings);
    }
    m_stamp = isGood ? std::optional(stamp) : std::nullopt;
}

bool SettingsFile::isDamaged() const
{
    if (QFileInfo(m_path).isDir())
        return true;
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    if (decoder.hasError() || std::any_of(text.begin(), text.end(), isControl))
        return true;
    // QSettings judges a copy, because it would write what is pending over the file itself as soon as it opens it.
    QTemporaryFile copy;
    if (!copy.open() || copy.write(bytes) != bytes.size() || !copy.flush())
        return false;
    const QSettings judge(copy.fileName(), QSettings::IniFormat);
    judge.allKeys(); // parses all sections
    return judge.status() == QSettings::FormatError;
}

bool SettingsFile::setAside() const
{
    const QFileInfo info(m_path);
    const QString suffix = info.suffix().isEmpty() ? QString() : u'.' + info.suffix();
    const QString stem = info.path() + u'/' + info.completeBaseName() + QStringLiteral(".damaged-");
    QString aside;
    for (int number = 1; aside.isEmpty() || QFileInfo::exists(aside); ++number)
        aside = stem + QString::number(number) + suffix;
    if (!QDir().rename(m_path, aside))
        return false;
    qWarning("The settings in \"%s\" are damaged; they are kept as \"%s\".", qUtf8Printable(m_path),
             qUtf8Printable(aside));
    return true;
}

void SettingsFile::removeOnly(const QString& fullKey)
{
    // QSettings removes the group of that name along.
    std::map<QString, QVariant> below;
    for (const QString& key : m_settings->allKeys())
        if (key.startsWith(fullKey + u'/'))
            below[key] = m_settings->value(key);
    m_settings->remove(fullKey);
    for (const auto& [key, value] : below)
        m_settings->setValue(key, value);
}

bool SettingsFile::save()
{
    const QDateTime before = QFileInfo(m_path).lastModified();
    m_settings->sync();
    const bool ok = m_settings->status() == QSettings::NoError;
    // By size and time QSettings, too, tells whether another process wrote: no two writes may leave the same time.
    QFile file(m_path);
    if (ok && before.isValid() && QFileInfo(m_path).lastModified() <= before &&
        file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        file.setFileTime(before.addMSecs(1), QFileDevice::FileModificationTime);
    m_stamp = currentStamp();
    return ok;
}

SettingsFile::Stamp SettingsFile::currentStamp() const
{
    const QFileInfo info(m_path);
    return {info.exists() ? info.size() : -1, info.lastModified()};
}
