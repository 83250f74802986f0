#include "support/changescript.h"

#include <QDebug>

namespace velmtest {
bool ChangeScript::run(int steps, const std::function<bool()>& check)
{
    for (int step = 0; step < steps; ++step) {
        const Entry& entry = m_edits[m_random.bounded(static_cast<quint32>(m_edits.size()))];
        entry.edit(m_random);
        if (!check()) {
            qCritical().noquote() << "the check failed after edit" << step << QString::fromStdString(entry.name);
            return false;
        }
    }
    return true;
}
} // namespace velmtest
