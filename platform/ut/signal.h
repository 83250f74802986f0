#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace ut {
/// No locking: a signal with this policy belongs to one thread.
struct MutexDisabledPolicy
{};

/// Keeps a function connected to a signal for its own life; it may outlive the signal.
class SignalConnection
{
public:
    SignalConnection() = default;
    explicit SignalConnection(std::shared_ptr<void> slot) : m_slot(std::move(slot)) {}

private:
    std::shared_ptr<void> m_slot;
};

/// Calls the connected functions in the order of their connection.
template <typename Signature, typename ThreadPolicy>
class SignalBase;

template <typename... Arguments>
class SignalBase<void(Arguments...), MutexDisabledPolicy>
{
public:
    using Slot = std::function<void(Arguments...)>;

    [[nodiscard]] SignalConnection connect(Slot slot)
    {
        std::erase_if(m_slots, [](const std::weak_ptr<Slot>& other) { return other.expired(); });
        auto shared = std::make_shared<Slot>(std::move(slot));
        m_slots.push_back(shared);
        return SignalConnection(std::move(shared));
    }

    void operator()(Arguments... arguments) const
    {
        // A copy: a called function may connect others or destroy the signal.
        const std::vector<std::weak_ptr<Slot>> slots = m_slots;
        for (const std::weak_ptr<Slot>& weak : slots)
            if (const std::shared_ptr<Slot> slot = weak.lock())
                (*slot)(arguments...);
    }

private:
    std::vector<std::weak_ptr<Slot>> m_slots;
};
} // namespace ut
