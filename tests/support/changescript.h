#pragma once

#include <QRandomGenerator>

#include <functional>
#include <string>
#include <vector>

namespace velmtest {
/// Drives a model through random edits. Each edit is a function that draws its arguments from the generator, also ones
/// that don't fit, and changes both the model and a plain reference; a check after every edit compares the two.
class ChangeScript
{
public:
    using Edit = std::function<void(QRandomGenerator&)>;

    /// The same seed gives the same run.
    explicit ChangeScript(quint32 seed) : m_random(seed) {}

    void add(std::string name, Edit edit) { m_edits.push_back({std::move(name), std::move(edit)}); }
    /// False at the first edit after which the check is; the name of that edit and how many came before it are logged.
    bool run(int steps, const std::function<bool()>& check);

private:
    struct Entry
    {
        std::string name;
        Edit edit;
    };

    QRandomGenerator m_random;
    std::vector<Entry> m_edits;
};
} // namespace velmtest
