#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QSettings>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

/// One INI file of texts, below sections, that several processes may share: QSettings, and what it doesn't give. A key
/// is any text; each slash in it makes a group. A write adds to what the file holds at that moment, under a lock; a
/// read looks first whether the file has changed. A damaged file is renamed, never overwritten. Values that don't reach
/// the disk count until the process ends. Case is significant where it is to QSettings: not on Windows. Comments are
/// gone after the next write. Not for use from several threads.
class SettingsFile
{
public:
    /// Nothing happens to the file before the first use.
    explicit SettingsFile(const QString& path);

    const QString& path() const { return m_path; }
    bool isWritable();

    std::optional<QString> value(const QString& section, const QString& key);
    /// The names of the groups directly below the key, or below the section when it is empty, sorted.
    QStringList groups(const QString& section, QString key);
    /// Sets the value, or removes it when it is empty. False when that didn't reach the disk.
    bool set(const QString& section, const QString& key, const std::optional<QString>& value);
    /// Removes all entries below the key, and the key's own; true when there were any.
    bool removeGroup(const QString& section, const QString& key);

private:
    using Stamp = std::pair<qint64, QDateTime>; // size and time

    void refresh();
    bool lock();
    void load();
    bool isDamaged() const;
    bool setAside() const;
    /// Runs `edit` on what the file holds now, under the lock, and saves. False when that didn't reach the disk.
    bool change(const std::function<void()>& edit);
    void removeOnly(const QString& fullKey);
    bool save();
    Stamp currentStamp() const;

    QString m_path;
    QLockFile m_lock;
    std::unique_ptr<QSettings> m_settings;
    std::optional<Stamp> m_stamp; // of the file when it was found in order; none: look again
    bool m_allSaved = true;
};
