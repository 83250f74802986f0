#pragma once

#include <QHash>
#include <QString>

#include <vector>

namespace workbench {
/// Values by number, each of them once: for rows of which many have the same few values.
template <typename Value>
class ValuePool
{
public:
    /// The number of a value, which is added if it isn't there.
    int number(const Value& value)
    {
        const auto found = m_numbers.constFind(value);
        if (found != m_numbers.cend())
            return *found;
        m_values.push_back(value);
        return *m_numbers.insert(value, static_cast<int>(m_values.size()) - 1);
    }
    const Value& value(int number) const { return m_values[static_cast<std::size_t>(number)]; }
    const std::vector<Value>& values() const { return m_values; }

private:
    QHash<Value, int> m_numbers;
    std::vector<Value> m_values;
};

using TextPool = ValuePool<QString>;
} // namespace workbench
