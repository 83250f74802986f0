#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QJsonObject>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <optional>

class QFileInfo;

namespace workbench {
/// The files of saved filters: one JSON file each, in a folder that is made when the first one is written. A file is
/// named by its filter, so that any two names have two files, also where letters don't differ by case; the name itself
/// stands inside. A file that can't be read as a filter is told of once and then passed over until it changes; nothing
/// ever removes it or writes over it.
/// What other processes do to the files shows. Nothing is locked: the last one who writes a filter wins.
class FilterFolder : public QObject
{
    Q_OBJECT
public:
    using Tell = std::function<void(const QString& message)>;

    /// The version of what is written. Newer files are listed and read, too.
    static constexpr int version = 1;
    /// Keys of a file's object.
    static constexpr QLatin1String versionKey{"version"};
    static constexpr QLatin1String conjunctionsKey{"conjunctions"};

    FilterFolder(QString folder, Tell tell);

    /// In natural order, without regard to case.
    QStringList names();
    /// The file's object: "version", "name" and, unless it is newer than version, "conjunctions" that isFilterJson().
    std::optional<QJsonObject> read(const QString& name);
    /// Replaces a filter of the name. False, and told, when it fails; the former one is then as it was.
    bool write(const QString& name, QJsonObject filter);
    /// Nothing when there is no filter of the name.
    void remove(const QString& name);

    /// Shows a message to the user.
    void tell(const QString& message) const;
    /// Emits changed() if the names have changed since it last did. The receiver may destroy the folder.
    void tellChange();

Q_SIGNALS:
    /// Filters came or went, by this process or another.
    void changed();

private:
    struct Stamp
    {
        qint64 size = -1;
        QDateTime modified;
        QDateTime touched;

        friend bool operator==(const Stamp&, const Stamp&) = default;
    };
    struct Entry
    {
        Stamp stamp;
        QDateTime read;
        std::optional<QString> name; ///< none: it can't be read as a filter
    };

    QString pathOf(const QString& name) const;
    void watch();
    void scan();
    Entry entryOf(const QFileInfo& file);
    std::optional<QJsonObject> readFile(const QFileInfo& file) const;
    bool keepAside(const QString& path);

    const QString m_folder;
    const Tell m_tell;
    QFileSystemWatcher m_watcher;
    QHash<QString, Entry> m_entries; ///< by file name
    QStringList m_found;             ///< in the order of the disk
    QStringList m_names;
    QStringList m_toldNames;
    QTimer m_changeTimer;
};
} // namespace workbench
