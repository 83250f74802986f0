#pragma once

#include "ut/config.h"
#include "velm/velm_export.h"

#include <wx/colour.h>
#include <wx/gdicmn.h>
#include <wx/string.h>

#include <vector>

namespace velm {
/// The library's door to the host's configuration store. It keeps no state; every call goes through.
class VELM_EXPORT VelmConfig
{
public:
    VelmConfig() = delete;

    // Each read tells whether the store held the entry, and leaves `value` alone otherwise.
    static bool read(ut::ECfgGroup group, const wxString& key, bool& value);
    static bool read(ut::ECfgGroup group, const wxString& key, short& value);
    static bool read(ut::ECfgGroup group, const wxString& key, long& value);
    static bool read(ut::ECfgGroup group, const wxString& key, double& value);
    static bool read(ut::ECfgGroup group, const wxString& key, wxString& value);
    /// An entry that is no colour is removed from the store; `value` is then not valid.
    static bool read(ut::ECfgGroup group, const wxString& key, wxColour& value);
    static bool read(ut::ECfgGroup group, const wxString& key, wxSize& value);
    static bool read(ut::ECfgGroup group, const wxString& key, wxPoint& value);
    static bool read(ut::ECfgGroup group, const wxString& key, wxRect& value);

    static bool writeBool(ut::ECfgGroup group, const wxString& key, bool value);
    static bool writeLong(ut::ECfgGroup group, const wxString& key, long value);

    // The settings of dialogs, under the dialog's name, a slash and the setting's name, which may hold slashes itself.
    // A missing entry gives the default.
    static bool readDialogSetting(const wxString& dialog, const wxString& setting, bool defaultValue);
    static short readDialogSetting(const wxString& dialog, const wxString& setting, short defaultValue);
    static long readDialogSetting(const wxString& dialog, const wxString& setting, long defaultValue);
    static double readDialogSetting(const wxString& dialog, const wxString& setting, double defaultValue);
    static wxString readDialogSetting(const wxString& dialog, const wxString& setting, const wxString& defaultValue);
    static wxRect readDialogSetting(const wxString& dialog, const wxString& setting, const wxRect& defaultValue);
    static wxColour readDialogSetting(const wxString& dialog, const wxString& setting, const wxColour& defaultValue);
    /// The names of the groups below a setting, in the store's order.
    static std::vector<wxString> readDialogEntryList(const wxString& dialog, const wxString& setting);

    static void writeDialogSetting(const wxString& dialog, const wxString& setting, bool value);
    static void writeDialogSetting(const wxString& dialog, const wxString& setting, long value);
};
} // namespace velm
