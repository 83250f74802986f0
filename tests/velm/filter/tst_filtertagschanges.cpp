#include "filtertags.h"

#include "support/changescript.h"

#include <QTest>

using namespace velm;

class TestFilterTagsChanges : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void randomEditsKeepToAPlainList()
    {
        velmtest::TagsFixture f;
        FilterData expected(1);
        // What tells each conjunction's edits, since a copy in the middle is silent: how often it is connected.
        std::vector<int> connections = {1};
        int told = 0;
        int expectedTold = 0;
        QObject::connect(&f.model, &FilterTagsModel::filtersChanged, &f.model, [&told] { ++told; });

        using Random = QRandomGenerator;
        const auto row = [&](Random& random) { return random.bounded(-1, static_cast<int>(expected.size()) + 2); };
        const auto isRow = [&](int i) { return i >= 0 && i < static_cast<int>(expected.size()); };
        const auto at = [&](int i) -> std::vector<FilterTagData>& { return expected[static_cast<std::size_t>(i)]; };
        const auto toldBy = [&](int i) { return connections[static_cast<std::size_t>(i)]; };
        const auto value = [](Random& random) { return QVariant(QString::number(random.bounded(4))); };

        velmtest::ChangeScript script(20);
        script.add("addConjunction", [&](Random&) {
            f.model.addConjunction();
            expected.emplace_back();
            connections.push_back(1);
            ++expectedTold;
        });
        script.add("removeConjunction", [&](Random& random) {
            const int i = row(random);
            f.model.removeConjunction(i);
            if (!isRow(i))
                return;
            if (expected.size() == 1) {
                expectedTold += at(0).empty() ? 0 : toldBy(0) + 1;
                at(0).clear();
                return;
            }
            expected.erase(expected.begin() + i);
            connections.erase(connections.begin() + i);
            ++expectedTold;
        });
        script.add("duplicateConjunction", [&](Random& random) {
            const int i = row(random);
            if (expected.size() > 12)
                return;
            f.model.duplicateConjunction(i);
            if (!isRow(i))
                return;
            expected.insert(expected.begin() + i + 1, std::vector<FilterTagData>(at(i)));
            connections.insert(connections.begin() + i + 1, 0);
            ++connections.back();
            ++expectedTold;
        });
        const auto addTag = [&](Random& random) {
            const int i = row(random);
            const FilterTagData tag{random.bounded(-1, 4), random.bounded(-1, 13), value(random)};
            f.model.addTag(i, tag.propertyIndex, tag.operation, tag.value);
            if (!isRow(i) || tag.propertyIndex < 0 || tag.propertyIndex > 2)
                return;
            at(i).push_back(tag);
            expectedTold += toldBy(i);
        };
        for (int weight = 0; weight < 3; ++weight)
            script.add("addTag", addTag);
        script.add("editTag", [&](Random& random) {
            const int i = row(random);
            const int tag = random.bounded(-1, 4);
            FilterTagData edited{random.bounded(-1, 4), random.bounded(0, 2), value(random)};
            f.model.editTag(i, tag, edited.propertyIndex, edited.operation, edited.value);
            if (!isRow(i) || tag < 0 || tag >= static_cast<int>(at(i).size()) || edited.propertyIndex < 0 ||
                edited.propertyIndex > 2)
                return;
            FilterTagData& present = at(i)[static_cast<std::size_t>(tag)];
            expectedTold += present == edited ? 0 : toldBy(i);
            present = edited;
        });
        script.add("removeTag", [&](Random& random) {
            const int i = row(random);
            const int tag = random.bounded(-1, 4);
            f.model.removeTag(i, tag);
            if (!isRow(i) || tag < 0 || tag >= static_cast<int>(at(i).size()))
                return;
            at(i).erase(at(i).begin() + tag);
            expectedTold += toldBy(i);
        });
        script.add("removeTags", [&](Random& random) {
            const int i = row(random);
            f.model.removeTags(i);
            if (!isRow(i) || at(i).empty())
                return;
            at(i).clear();
            expectedTold += toldBy(i);
        });
        script.add("clear", [&](Random& random) {
            if (random.bounded(5) > 0)
                return;
            f.model.clear();
            expectedTold += at(0).empty() ? 0 : toldBy(0);
            expected.resize(1);
            connections.resize(1);
            at(0).clear();
        });
        script.add("setFilter", [&](Random& random) {
            FilterData filter(random.bounded(3u));
            for (std::vector<FilterTagData>& tags : filter)
                tags.push_back({random.bounded(-2, 3), 0, value(random)});
            f.model.setFilter(filter);
            const bool isBad =
                std::any_of(filter.begin(), filter.end(), [](const auto& tags) { return tags[0].propertyIndex < -1; });
            if (filter.empty())
                filter.resize(1);
            if (isBad || filter == expected)
                return;
            connections.assign(filter.size(), 1);
            expected = std::move(filter);
            ++expectedTold;
        });
        QVERIFY(script.run(3000, [&] {
            return f.model.getFilter() == expected && told == expectedTold && f.mirror.isRight() &&
                   f.model.rowCount() == static_cast<int>(expected.size());
        }));
    }
};

QTEST_GUILESS_MAIN(TestFilterTagsChanges)
#include "tst_filtertagschanges.moc"
