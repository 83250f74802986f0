#pragma once

#include <wx/string.h>

#include <functional>
#include <map>
#include <vector>

namespace workbench {

/// Named commands. Names don't depend on case, and the marks "_" and "'" in front of a typed name are dropped.
class Commands
{
public:
    using Handler = std::function<void(const wxString& arguments)>;

    /// A name that stands already gets the new help and handler.
    void add(const wxString& name, const wxString& help, Handler handler);
    /// Another, mostly shorter, name for a command; it is not listed.
    void addAlias(const wxString& alias, const wxString& name);

    /// Runs the command that the first word names, with the trimmed rest. False when there is no such command.
    bool run(const wxString& line) const;

    bool contains(const wxString& name) const;
    /// The names in upper case, sorted.
    std::vector<wxString> names() const;
    /// The help of a command or an alias, empty when there is no such command.
    wxString help(const wxString& name) const;

private:
    struct Entry
    {
        wxString help;
        Handler handler;
    };

    const Entry* find(const wxString& name) const;

    std::map<wxString, Entry> m_entries;
    std::map<wxString, wxString> m_aliases; // to names
};

} // namespace workbench
