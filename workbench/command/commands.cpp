#include "command/commands.h"

namespace workbench {

namespace {

wxString keyOf(const wxString& name)
{
    wxString key = name.Upper();
    while (key.StartsWith("_") || key.StartsWith("'"))
        key.erase(0, 1);
    return key;
}

} // namespace

void Commands::add(const wxString& name, const wxString& help, Handler handler)
{
    m_entries[keyOf(name)] = {help, std::move(handler)};
}

void Commands::addAlias(const wxString& alias, const wxString& name)
{
    m_aliases[keyOf(alias)] = keyOf(name);
}

bool Commands::run(const wxString& line) const
{
    const wxString trimmed = wxString(line).Trim(true).Trim(false);
    const std::size_t end = trimmed.find_first_of(" \t");
    const Entry* entry = find(trimmed.substr(0, end));
    if (!entry)
        return false;
    // The handler may change the commands.
    const Handler handler = entry->handler;
    handler(end == wxString::npos ? wxString() : trimmed.substr(end).Trim(false));
    return true;
}

bool Commands::contains(const wxString& name) const
{
    return find(name) != nullptr;
}

std::vector<wxString> Commands::names() const
{
    std::vector<wxString> names;
    for (const auto& [name, entry] : m_entries)
        names.push_back(name);
    return names;
}

wxString Commands::help(const wxString& name) const
{
    const Entry* entry = find(name);
    return entry ? entry->help : wxString();
}

const Commands::Entry* Commands::find(const wxString& name) const
{
    wxString key = keyOf(name);
    if (const auto alias = m_aliases.find(key); alias != m_aliases.end())
        key = alias->second;
    const auto entry = m_entries.find(key);
    return entry == m_entries.end() ? nullptr : &entry->second;
}

} // namespace workbench
