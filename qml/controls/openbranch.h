#pragma once

#include <memory>
#include <vector>

namespace velmqml {
/// A row of a tree whose children are shown, or the root. It knows which of its children are open in turn, and so how
/// its rows and all that is shown below them lie in one flat list. Closed rows cost nothing.
class OpenBranch
{
public:
    /// What is found at a place of the flat list.
    struct Place
    {
        const OpenBranch* branch;
        int row;
    };

    using Children = std::vector<std::unique_ptr<OpenBranch>>;

    /// Its row among the children of its parent, and which of its own children are open, in the order of their rows.
    OpenBranch(int row, int childCount, Children open);

    int childCount() const { return m_count; }
    /// The rows that are shown below it, all levels together.
    int total() const { return m_total; }
    const OpenBranch* parent() const { return m_parent; }
    int row() const { return m_row; }
    /// The levels above it, the root's not counted.
    int depth() const;

    /// Null for a child that isn't open.
    OpenBranch* openChild(int row) const;
    /// Where a child lies in the list that begins with this branch's first row; childCount() gives the end.
    int placeOfChild(int row) const;
    /// Where the branch's first child lies in the list of the root.
    int placeInRoot() const;
    Place find(int place) const;

    void open(std::unique_ptr<OpenBranch> branch);
    void close(int row);
    void insertRows(int first, int count);
    /// The open ones among them go, too.
    void removeRows(int first, int count);

private:
    Children::const_iterator lowerBound(int row) const;
    void recount();

    OpenBranch* m_parent = nullptr; // not owned
    int m_row;
    int m_count;
    int m_total = 0;
    int m_before = 0; ///< the rows that are shown below the open siblings above it
    Children m_open;
};
} // namespace velmqml
