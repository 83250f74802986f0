#include "bench/comparison.h"

#include "velm/filter/abstractfilterpropertiesmodel.h"
#include "velm/filter/filterpopupcontroller.h"

#include <QSortFilterProxyModel>

#include <algorithm>
#include <vector>

namespace velmbench {
namespace {
constexpr int groupCount = 100;
constexpr int propertyCount = 10'000;

/// Ten thousand properties in a hundred groups of two levels, every tenth with a unit.
class Properties : public velm::AbstractFilterPropertiesModel
{
public:
    Properties()
    {
        m_names.reserve(propertyCount);
        m_paths.reserve(propertyCount);
        for (int index = 0; index < propertyCount; ++index) {
            const int group = index % groupCount;
            m_names.push_back(QString("Property number %1").arg(index));
            m_paths.push_back({QString("Category %1").arg(group / 10), QString("Group %1").arg(group)});
        }
    }

    int getNrProperties() const override { return propertyCount; }
    QString getName(int index) const override { return m_names[static_cast<std::size_t>(index)]; }
    QString getValueType(int) const override { return QStringLiteral("real"); }
    QStringList getPath(int index) const override { return m_paths[static_cast<std::size_t>(index)]; }
    QString getUnit(int index) const override { return index % 10 == 0 ? QStringLiteral("mm") : QString(); }

    /// What makes a tree of the properties be built anew.
    void tellChange() { Q_EMIT dataChanged(index(0, 0), index(propertyCount - 1, 0)); }

private:
    std::vector<QString> m_names;
    std::vector<QStringList> m_paths;
};

/// The yardstick: the whole text of each property in one list.
std::vector<QString> textsOf(const Properties& properties)
{
    std::vector<QString> texts;
    for (int index = 0; index < propertyCount; ++index) {
        const QString unit = properties.getUnit(index);
        texts.push_back(properties.getPath(index).join(' ') + ' ' + properties.getName(index) +
                        (unit.isEmpty() ? QString() : " [" + unit + ']'));
    }
    return texts;
}

int countMatches(const std::vector<QString>& texts, const QStringList& terms)
{
    return static_cast<int>(std::count_if(texts.begin(), texts.end(), [&terms](const QString& text) {
        return std::all_of(terms.begin(), terms.end(),
                           [&text](const QString& term) { return text.contains(term, Qt::CaseInsensitive); });
    }));
}

/// Whole branches as a view that shows all of them counts them.
int countLeaves(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    const int count = model.rowCount(parent);
    if (count == 0)
        return 1;
    int leaves = 0;
    for (int row = 0; row < count; ++row)
        leaves += countLeaves(model, model.index(row, 0, parent));
    return leaves;
}

void compareRebuilds()
{
    compare(
        "filter properties: build the tree of 10 000 anew",
        [=](benchmark::State& state) {
            Properties model;
            velm::FilterPopupController popup;
            popup.setPropertiesModel(&model);
            for (auto _ : state)
                model.tellChange();
            verify(countLeaves(*popup.getSortFilterSelectModel()) == propertyCount, "building the tree");
        },
        [=](benchmark::State& state) {
            Properties model;
            std::vector<QString> texts;
            for (auto _ : state) {
                texts = textsOf(model);
                std::sort(texts.begin(), texts.end());
            }
            verify(texts.size() == propertyCount, "reading the texts");
        });
}

/// `expected` properties hold all the terms.
void compareSearches(const std::string& name, const QString& search, int expected)
{
    compare(
        "filter properties: " + name,
        [=](benchmark::State& state) {
            const Properties properties;
            velm::FilterPopupController popup;
            popup.setPropertiesModel(&properties);
            const QAbstractItemModel& shown = *popup.getSortFilterSelectModel();
            verify(countLeaves(shown) == propertyCount, "showing all properties");
            int found = 0;
            for (auto _ : state) {
                popup.setSearchString(search);
                found = shown.rowCount() == 0 ? 0 : countLeaves(shown);
            }
            verify(found == expected, "searching the tree");
        },
        [=](benchmark::State& state) {
            const Properties properties;
            const std::vector<QString> texts = textsOf(properties);
            int found = 0;
            for (auto _ : state)
                found = countMatches(texts, search.split(' ', Qt::SkipEmptyParts));
            verify(found == expected, "searching the texts");
        });
}
} // namespace

void addFilterTree()
{
    compareRebuilds();
    compareSearches("search 10 000, all of them match", "category prop", propertyCount);
    compareSearches("search 10 000, some match", "77 number", 280);
    compareSearches("search 10 000, none matches", "number missing", 0);
}
} // namespace velmbench
