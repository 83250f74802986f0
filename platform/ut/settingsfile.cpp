#include "ut/settingsfile.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QStringDecoder>
#include <QThread>

namespace {
constexpr int lockTimeoutMs = 10000;
constexpr int lockPollMs = 2;
/// Two writes within this time may leave the same stamp.
constexpr qint64 stampResolutionMs = 100;

constexpr QChar escapeSign = u'%';
constexpr int escapeDigits = 4;

QString escaped(const QString& text, const QString& reserved)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool trimmedAway = c.isSpace() && (i == 0 || i == text.size() - 1);
        if (c < u' ' || c == u'\x7f' || c.isSurrogate() || c == escapeSign || trimmedAway || reserved.contains(c))
            result += escapeSign + QString::number(c.unicode(), 16).rightJustified(escapeDigits, u'0');
        else
            result += c;
    }
    return result;
}

QString unescaped(QStringView text)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        bool ok = false;
        ushort code = 0;
        if (text[i] == escapeSign && i + escapeDigits < text.size())
            code = text.mid(i + 1, escapeDigits).toUShort(&ok, 16);
        result += ok ? QChar(code) : text[i];
        if (ok)
            i += escapeDigits;
    }
    return result;
}

bool lockSoon(QLockFile& lock)
{
    // QLockFile's own waiting doubles its pauses up to seconds, which starves one of two busy writers.
    const QDeadlineTimer deadline(lockTimeoutMs);
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

SettingsFile::SettingsFile(const QString& path) : m_path(path)
{}

bool SettingsFile::isWritable() const
{
    const QFileInfo file(m_path);
    if (file.isFile() && !file.isWritable())
        return false;
    QFileInfo folder(file.absolutePath());
    while (!folder.exists() && !folder.isRoot())
        folder.setFile(folder.absolutePath());
    return folder.isDir() && folder.isWritable();
}

std::optional<QString> SettingsFile::value(const QString& section, const QString& key)
{
    refresh();
    const auto entry = m_entries.find({section, key});
    return entry == m_entries.end() ? std::nullopt : std::optional(entry->second);
}

std::set<QString> SettingsFile::groups(const QString& section, const QString& prefix)
{
    refresh();
    std::set<QString> result;
    for (auto entry = m_entries.lower_bound({section, prefix}); entry != m_entries.end(); ++entry) {
        const auto& [entrySection, key] = entry->first;
        if (entrySection != section || !key.startsWith(prefix))
            break;
        const qsizetype slash = key.indexOf(u'/', prefix.size());
        if (slash >= 0)
            result.insert(key.mid(prefix.size(), slash - prefix.size()));
    }
    return result;
}

bool SettingsFile::set(const QString& section, const QString& key, const std::optional<QString>& value)
{
    if (m_unsaved.empty() && this->value(section, key) == value)
        return true;
    m_unsaved[{section, key}] = value;
    if (save()) {
        m_unsaved.clear();
        m_stamp.reset();
        return true;
    }
    applyUnsaved();
    static bool warned = false;
    if (!std::exchange(warned, true))
        qWarning("The settings in \"%s\" can't be written; changes last until the program ends.",
                 qUtf8Printable(m_path));
    return false;
}

std::optional<SettingsFile::Entries> SettingsFile::parse(const QByteArray& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    if (decoder.hasError() || std::any_of(text.begin(), text.end(), isControl))
        return std::nullopt;
    Entries entries;
    QString section;
    for (QStringView line : QStringView(text).split(u'\n')) {
        line = line.trimmed();
        if (line.isEmpty() || line.startsWith(u';') || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u'[')) {
            if (!line.endsWith(u']'))
                return std::nullopt;
            section = line.mid(1, line.size() - 2).toString();
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (equals < 0)
            return std::nullopt;
        entries[{section, unescaped(line.left(equals).trimmed())}] = unescaped(line.mid(equals + 1).trimmed());
    }
    return entries;
}

QByteArray SettingsFile::serialize(const Entries& entries)
{
    QString text;
    QString section;
    for (const auto& [address, value] : entries) {
        if (address.first != section) {
            section = address.first;
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + u'[' + section + QStringLiteral("]\n");
        }
        text += escaped(address.second, QStringLiteral("=[];#")) + u'=' + escaped(value, QString()) + u'\n';
    }
    return text.toUtf8();
}

void SettingsFile::refresh()
{
    if (m_stamp == currentStamp() || load() != Content::Damaged)
        return;
    QLockFile lock(m_path + QStringLiteral(".lock"));
    if (lockSoon(lock))
        loadOrSetAside();
}

SettingsFile::Content SettingsFile::load()
{
    m_entries.clear();
    const auto stamp = currentStamp();
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const bool stampIsUnique = !stamp.second.isValid() || stamp.second.msecsTo(now) > stampResolutionMs;
    m_stamp = stampIsUnique ? std::optional(stamp) : std::nullopt;

    Content content = Content::Good;
    const QFileInfo info(m_path);
    if (info.isDir()) {
        content = Content::Damaged;
    } else if (info.exists()) {
        QFile file(m_path);
        std::optional<Entries> read;
        if (!file.open(QIODevice::ReadOnly))
            content = Content::Unreadable;
        else if (!(read = parse(file.readAll())))
            content = Content::Damaged;
        else
            m_entries = std::move(*read);
    }
    applyUnsaved();
    return content;
}

SettingsFile::Content SettingsFile::loadOrSetAside()
{
    // Another process may have mended the file before the lock was ours.
    const Content content = load();
    return content == Content::Damaged && setAside() ? load() : content;
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

void SettingsFile::applyUnsaved()
{
    for (const auto& [address, value] : m_unsaved) {
        if (value)
            m_entries[address] = *value;
        else
            m_entries.erase(address);
    }
}

bool SettingsFile::save()
{
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    QLockFile lock(m_path + QStringLiteral(".lock"));
    if (!lockSoon(lock) || loadOrSetAside() != Content::Good)
        return false;
    const QByteArray bytes = serialize(m_entries);
    QSaveFile file(m_path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

std::pair<qint64, QDateTime> SettingsFile::currentStamp() const
{
    const QFileInfo info(m_path);
    return {info.exists() ? info.size() : -1, info.lastModified()};
}
