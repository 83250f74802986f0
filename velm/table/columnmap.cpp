#include "velm/table/columnmap.h"

#include <algorithm>

namespace velm {
void ColumnMap::reset(std::vector<ColumnState> states, std::vector<int> order)
{
    m_states = std::move(states);
    setOrder(std::move(order));
}

const ColumnState* ColumnMap::state(int source) const
{
    return source >= 0 && source < sourceCount() ? &m_states[static_cast<std::size_t>(source)] : nullptr;
}

const ColumnState* ColumnMap::shown(int proxy) const
{
    return proxy >= 0 && proxy < shownCount() ? state(toSource(proxy)) : nullptr;
}

int ColumnMap::toSource(int proxy) const
{
    return proxy >= 0 && proxy < shownCount() ? m_order[static_cast<std::size_t>(proxy)] : proxy;
}

int ColumnMap::toProxy(int source) const
{
    const ColumnState* found = state(source);
    return found ? found->position : source;
}

bool ColumnMap::isVisible(int source) const
{
    const ColumnState* found = state(source);
    return found && found->visible;
}

int ColumnMap::hiddenBefore(int source) const
{
    const auto end = m_states.begin() + std::clamp(source, 0, sourceCount());
    return static_cast<int>(std::count_if(m_states.begin(), end, [](const auto& state) { return !state.visible; }));
}

void ColumnMap::setOrder(std::vector<int> order)
{
    m_order = std::move(order);
    rebuild();
}

void ColumnMap::setWidth(int source, int width)
{
    if (state(source))
        m_states[static_cast<std::size_t>(source)].width = width;
}

void ColumnMap::setPosition(int source, int position)
{
    if (state(source))
        m_states[static_cast<std::size_t>(source)].position = position;
}

std::vector<int> ColumnMap::orderWith(int source) const
{
    std::vector<int> order = m_order;
    const ColumnState* found = state(source);
    if (!found || found->visible)
        return order;
    const bool fits = found->position >= 0 && found->position <= shownCount();
    order.insert(order.begin() + (fits ? found->position : std::min(shownCount(), source)), source);
    return order;
}

std::vector<int> ColumnMap::orderWithout(int source) const
{
    std::vector<int> order = m_order;
    std::erase(order, source);
    return order;
}

void ColumnMap::insert(int first, const std::vector<ColumnState>& states)
{
    const int count = static_cast<int>(states.size());
    const int place = std::min(first - hiddenBefore(first), shownCount());
    for (int& source : m_order)
        if (source >= first)
            source += count;
    for (ColumnState& state : m_states)
        if (state.position >= place)
            state.position += count;
    auto inserted = m_states.insert(m_states.begin() + first, states.begin(), states.end());
    for (int i = 0; i < count; ++i, ++inserted)
        inserted->position = place + i;
    rebuild();
}

void ColumnMap::remove(int first, int last)
{
    m_states.erase(m_states.begin() + first, m_states.begin() + std::min(last + 1, sourceCount()));
    std::erase_if(m_order, [=](int source) { return source >= first && source <= last; });
    for (int& source : m_order)
        if (source > last)
            source -= last - first + 1;
    rebuild();
}

void ColumnMap::rebuild()
{
    for (ColumnState& state : m_states)
        state.visible = false;
    for (std::size_t place = 0; place < m_order.size(); ++place) {
        ColumnState& state = m_states[static_cast<std::size_t>(m_order[place])];
        state.visible = true;
        state.position = static_cast<int>(place);
    }
}
} // namespace velm
