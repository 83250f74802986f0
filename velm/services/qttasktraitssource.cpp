#include "velm/services/qttasktraitssource.h"

#include <map>
#include <utility>

namespace velm::dwghealth {
namespace {
class EmptyQtTaskTraits final : public IQtTaskTraits
{
public:
    oc::dwghealth::ETaskType taskType() const override { return static_cast<oc::dwghealth::ETaskType>(-1); }
    QString traitText1() const override { return {}; }
    QString traitText2() const override { return {}; }
    QString traitText3() const override { return {}; }
    QString traitText4() const override { return {}; }
    bool traitFlag1() const override { return true; }
    std::shared_ptr<void> traitObject1() const override { return {}; }
    std::shared_ptr<void> traitObject2(std::shared_ptr<void> /*argument*/) const override { return {}; }
    bool traitFlag2() const override { return true; }
};

struct Registry
{
    std::set<QtTaskTraitsSource*> sources; // not owned
    std::map<oc::dwghealth::ETaskType, std::shared_ptr<IQtTaskTraits>> traits;
};

Registry& registry()
{
    static Registry instance;
    return instance;
}
} // namespace

QtTaskTraitsSource::QtTaskTraitsSource()
{
    registry().sources.insert(this);
}

QtTaskTraitsSource::QtTaskTraitsSource(const QtTaskTraitsSource&) = default;
QtTaskTraitsSource& QtTaskTraitsSource::operator=(const QtTaskTraitsSource&) = default;

QtTaskTraitsSource::~QtTaskTraitsSource()
{
    for (const oc::dwghealth::ETaskType type : m_types)
        registry().traits.erase(type);
    registry().sources.erase(this);
}

void QtTaskTraitsSource::addTraits(std::shared_ptr<IQtTaskTraits> traits)
{
    if (traits == nullptr)
        return;
    const oc::dwghealth::ETaskType type = traits->taskType();
    registry().traits.emplace(type, std::move(traits));
    m_types.insert(type);
}

const IQtTaskTraits& getQtTaskTraits(oc::dwghealth::ETaskType type)
{
    static const EmptyQtTaskTraits empty;
    if (registry().traits.empty()) {
        // A source may make others, and end them or itself.
        const std::set<QtTaskTraitsSource*>& sources = registry().sources;
        for (auto next = sources.begin(); next != sources.end();) {
            QtTaskTraitsSource* const source = *next;
            source->initTraits();
            next = sources.upper_bound(source);
        }
    }
    const auto entry = registry().traits.find(type);
    if (entry == registry().traits.end() || entry->second == nullptr)
        return empty;
    return *entry->second;
}
} // namespace velm::dwghealth
