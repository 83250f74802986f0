#include "velm/units/velmconfig.h"

#include <optional>

namespace velm {
namespace {
constexpr ut::ECfgGroup dialogGroup = ut::ECfgGroup::Dialogs;

OdString odFromWx(const wxString& text)
{
    return OdString(static_cast<const wchar_t*>(text.wc_str()));
}

wxString dialogKey(const wxString& dialog, const wxString& setting)
{
    return dialog + '/' + setting;
}

template <typename T>
T dialogSetting(const wxString& dialog, const wxString& setting, const T& defaultValue)
{
    T value{};
    return VelmConfig::read(dialogGroup, dialogKey(dialog, setting), value) ? value : defaultValue;
}
} // namespace

bool VelmConfig::read(ut::ECfgGroup group, const wxString& key, bool& value)
{
    return ut::Config::read(group, odFromWx(key), value);
}

bool VelmConfig::read(ut::ECfgGroup group, const wxString& key, short& value)
{
    return ut::Config::read(group, odFromWx(key), value);
}

bool VelmConfig::read(ut::ECfgGroup group, const wxString& key, long& value)
{
    return ut::Config::read(group, odFromWx(key), value);
}

bool VelmConfig::read(ut::ECfgGroup group, const wxString& key, double& value)
{
    return ut::Config::read(group, odFromWx(key), value);
}

bool VelmConfig::read(ut::ECfgGroup group, const wxString& key, wxString& value)
{
    OdString text;
    if (!ut::Config::read(group, odFromWx(key), text))
        return false;
    value = text.c_str();
    return true;
}

bool VelmConfig::read(ut::ECfgGroup group, const wxString& key, wxColour& value)
{
    wxString text;
    if (!read(group, key, text))
        return false;
    value = wxColour();
    value.Set(text);
    if (value.IsOk())
        return true;
    // What is no colour removes itself, so that it is refused only once.
    ut::Config::deleteEntry(group, odFromWx(key));
    return false;
}

bool VelmConfig::read(ut::ECfgGroup group, const wxString& key, wxSize& value)
{
    return ut::Config::read(group, odFromWx(key), value);
}

bool VelmConfig::read(ut::ECfgGroup group, const wxString& key, wxPoint& value)
{
    return ut::Config::read(group, odFromWx(key), value);
}

bool VelmConfig::read(ut::ECfgGroup group, const wxString& key, wxRect& value)
{
    return ut::Config::read(group, odFromWx(key), value);
}

bool VelmConfig::writeBool(ut::ECfgGroup group, const wxString& key, bool value)
{
    return ut::Config::writeBool(group, odFromWx(key), value);
}

bool VelmConfig::writeLong(ut::ECfgGroup group, const wxString& key, long value)
{
    return ut::Config::writeLong(group, odFromWx(key), value);
}

bool VelmConfig::readDialogSetting(const wxString& dialog, const wxString& setting, bool defaultValue)
{
    return dialogSetting(dialog, setting, defaultValue);
}

short VelmConfig::readDialogSetting(const wxString& dialog, const wxString& setting, short defaultValue)
{
    return dialogSetting(dialog, setting, defaultValue);
}

long VelmConfig::readDialogSetting(const wxString& dialog, const wxString& setting, long defaultValue)
{
    return dialogSetting(dialog, setting, defaultValue);
}

double VelmConfig::readDialogSetting(const wxString& dialog, const wxString& setting, double defaultValue)
{
    return dialogSetting(dialog, setting, defaultValue);
}

wxString VelmConfig::readDialogSetting(const wxString& dialog, const wxString& setting, const wxString& defaultValue)
{
    return dialogSetting(dialog, setting, defaultValue);
}

wxRect VelmConfig::readDialogSetting(const wxString& dialog, const wxString& setting, const wxRect& defaultValue)
{
    return dialogSetting(dialog, setting, defaultValue);
}

wxColour VelmConfig::readDialogSetting(const wxString& dialog, const wxString& setting, const wxColour& defaultValue)
{
    return dialogSetting(dialog, setting, defaultValue);
}

std::vector<wxString> VelmConfig::readDialogEntryList(const wxString& dialog, const wxString& setting)
{
    OdArray<OdString> groups;
    ut::Config::listGroups(dialogGroup, groups, odFromWx(dialogKey(dialog, setting)));
    std::vector<wxString> result;
    result.reserve(groups.size());
    for (const OdString& group : groups)
        result.emplace_back(group.c_str());
    return result;
}

void VelmConfig::writeDialogSetting(const wxString& dialog, const wxString& setting, bool value)
{
    writeBool(dialogGroup, dialogKey(dialog, setting), value);
}

void VelmConfig::writeDialogSetting(const wxString& dialog, const wxString& setting, long value)
{
    writeLong(dialogGroup, dialogKey(dialog, setting), value);
}
} // namespace velm
