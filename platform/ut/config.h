#pragma once

#include "od/odarray.h"
#include "od/odstring.h"

#include <wx/gdicmn.h>

#include <cstdint>
#include <memory>

namespace ut {
class ConfigNode;

/// The groups of the store that have a number of their own.
enum class ECfgGroup : std::uint32_t
{
    General = 1,
    Interface = 5,
    Dialogs = 6,
};

/// The host's persistent store of settings: a tree of entries, below a group, under a path of names with slashes.
/// Letters of names keep their case and are told apart by it. Every write is on disk when it returns; several processes
/// may share the store. A file that can't be read as a store is renamed, with a warning, and a new one is begun.
/// The file is the one that the environment variable TANDOLIN_CONFIG names, otherwise "Tandolin/settings.ini" in the
/// user's configuration folder.
class PLATFORM_EXPORT Config
{
public:
    /// What became of a list.
    enum class ERegList : int
    {
        Loaded = 0,
        NoKey = 1,    ///< the key doesn't exist
        NotSaved = 3, ///< the list didn't reach the disk
        Saved = 4,
    };

    // Each read tells whether the entry exists with a value of that type, and leaves `value` alone otherwise.
    static bool read(ECfgGroup group, const OdString& key, bool& value);
    static bool read(ECfgGroup group, const OdString& key, short& value);
    static bool read(ECfgGroup group, const OdString& key, long& value);
    static bool read(ECfgGroup group, const OdString& key, double& value);
    static bool read(ECfgGroup group, const OdString& key, OdString& value);
    static bool read(ECfgGroup group, const OdString& key, wxSize& value);
    static bool read(ECfgGroup group, const OdString& key, wxPoint& value);
    static bool read(ECfgGroup group, const OdString& key, wxRect& value);

    // Each write tells whether the value reached the disk. The first failure of a process is logged, later ones are
    // not.
    static bool writeBool(ECfgGroup group, const OdString& key, bool value);
    static bool writeLong(ECfgGroup group, const OdString& key, long value);
    static bool writeDouble(ECfgGroup group, const OdString& key, double value);
    static bool writeString(ECfgGroup group, const OdString& key, const OdString& value);
    static bool writeSize(ECfgGroup group, const OdString& key, const wxSize& value);
    static bool writePoint(ECfgGroup group, const OdString& key, const wxPoint& value);
    static bool writeRect(ECfgGroup group, const OdString& key, const wxRect& value);

    /// Removes one entry; true when it stood there.
    static bool deleteEntry(ECfgGroup group, const OdString& key);
    /// Fills `groups` with the names of the groups directly under the key, in the store's order (alphabetical).
    /// False, with an empty array, when there are none.
    static bool listGroups(ECfgGroup group, OdArray<OdString>& groups, const OdString& key);

    /// Fills `list` with the texts saved under the key, which may be none; it is empty when there is no such key.
    static ERegList loadListFromRegistry(ECfgGroup group, const OdString& key, OdArray<OdString>& list);
    /// Replaces the list under the key. There is one profile, 1.
    static ERegList saveListToRegistry(ECfgGroup group, const OdString& key, const OdArray<OdString>& list,
                                       int profile);
    /// Removes the key with all that is below it; true when anything stood there.
    static bool deleteGroup(ECfgGroup group, const OdString& key);
    /// The node under which a profile keeps the group; null for a profile that doesn't exist.
    static std::unique_ptr<ConfigNode> getIfProfileNode(ECfgGroup group, int profile);

    /// The name of the product.
    static OdString regProduct();
    /// The store's file.
    static OdString fileName();
    /// False when the store's folder or file can't be written.
    static bool isWritable();
    /// Forgets the open store, so that the next call opens the file that the environment names then.
    static void reopen();
};

/// A place in the store.
class PLATFORM_EXPORT ConfigNode
{
public:
    explicit ConfigNode(ECfgGroup group) : m_group(group) {}

    /// Makes the key, with a slash at its end, stand without a list's texts. False when that didn't reach the disk.
    bool createNode(const OdString& key) const;

private:
    ECfgGroup m_group;
};
} // namespace ut
