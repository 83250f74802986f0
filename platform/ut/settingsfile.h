#pragma once

#include <QDateTime>
#include <QString>

#include <map>
#include <optional>
#include <set>
#include <utility>

/// One file of settings in INI form: sections of key=value lines in UTF-8. A character that the form has no room for
/// stands as % and four hexadecimal digits; comments are read over and are gone after the next write.
/// Several processes may share the file: a write goes to what the file holds at that moment, under a lock, and replaces
/// the file in one step; a read looks first whether the file has changed. A damaged file is renamed, never overwritten.
/// Values that don't reach the disk count until the process ends. Not for use from several threads.
class SettingsFile
{
public:
    /// Nothing happens to the file before the first use.
    explicit SettingsFile(const QString& path);

    const QString& path() const { return m_path; }
    bool isWritable() const;

    std::optional<QString> value(const QString& section, const QString& key);
    /// The first names, up to a slash, of what follows `prefix` in the section's keys; keys without one are left out.
    std::set<QString> groups(const QString& section, const QString& prefix);
    /// Sets the value, or removes it when it is empty. False when that didn't reach the disk.
    bool set(const QString& section, const QString& key, const std::optional<QString>& value);

private:
    using Entries = std::map<std::pair<QString, QString>, QString>; // by section and key
    enum class Content
    {
        Good, // also a file that doesn't exist
        Damaged,
        Unreadable,
    };

    static std::optional<Entries> parse(const QByteArray& bytes);
    static QByteArray serialize(const Entries& entries);

    void refresh();
    Content load();
    Content loadOrSetAside();
    bool setAside() const;
    void applyUnsaved();
    bool save();
    std::pair<qint64, QDateTime> currentStamp() const;

    QString m_path;
    Entries m_entries;
    std::map<std::pair<QString, QString>, std::optional<QString>> m_unsaved;
    std::optional<std::pair<qint64, QDateTime>> m_stamp; // size and time of what was read; none: read again
};
