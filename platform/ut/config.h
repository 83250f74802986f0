#pragma once

#include "od/odarray.h"
#include "od/odstring.h"

#include <wx/gdicmn.h>

#include <cstdint>

namespace ut {
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

    /// The store's file.
    static OdString fileName();
    /// False when the store's folder or file can't be written.
    static bool isWritable();
    /// Forgets the open store, so that the next call opens the file that the environment names then.
    static void reopen();
};
} // namespace ut
