#pragma once

#include <QHash>
#include <QString>

#include <vector>

namespace workbench {
/// Texts by number, each of them once: for rows of which many have the same few texts.
class TextPool
{
public:
    /// The number of a text, which is added if it isn't there.
    int number(const QString& text)
    {
        const auto found = m_numbers.constFind(text);
        if (found != m_numbers.cend())
            return *found;
        m_texts.push_back(text);
        return *m_numbers.insert(text, static_cast<int>(m_texts.size()) - 1);
    }
    const QString& text(int number) const { return m_texts[static_cast<std::size_t>(number)]; }

private:
    QHash<QString, int> m_numbers;
    std::vector<QString> m_texts;
};
} // namespace workbench
