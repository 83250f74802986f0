#include "bench/comparison.h"

#include "velm/models/treemodel/treemodel.h"

#include <QStandardItemModel>

#include <algorithm>
#include <array>
#include <random>

namespace velmbench {
namespace {
class TextTree : public velm::TreeModel<QString>
{
public:
    int columnCount(const QModelIndex&) const override { return 1; }
    QVariant dataImpl(const QModelIndex& index, int role) const override
    {
        const QString* text = role == Qt::DisplayRole ? getData(index) : nullptr;
        return text ? QVariant(*text) : QVariant();
    }
};

/// The children of each node by level: one million nodes in all.
constexpr std::array fanOut{10, 41, 46, 52};
constexpr int nodeCount = 1'000'000;
constexpr int insertCount = 10'000;

/// Made beforehand, since both models share the texts that they are given.
const std::vector<QString>& texts()
{
    static const std::vector<QString> result = [] {
        std::vector<QString> made;
        made.reserve(nodeCount);
        for (int node = 0; node < nodeCount; ++node)
            made.push_back(QString::number(node));
        return made;
    }();
    return result;
}

/// The sum of the rows of all nodes; of their parents, that is once a child, when `ofParents`.
qint64 expectedRowSum(bool ofParents)
{
    qint64 sum = 0;
    qint64 parents = 1;
    for (std::size_t level = 0; level + (ofParents ? 1 : 0) < fanOut.size(); ++level) {
        const qint64 rows = parents * (qint64(fanOut[level]) * (fanOut[level] - 1) / 2);
        sum += ofParents ? rows * fanOut[level + 1] : rows;
        parents *= fanOut[level];
    }
    return sum;
}

void fill(TextTree& model, const QModelIndex& parent, std::size_t level, std::size_t& node)
{
    for (int row = 0; row < fanOut[level]; ++row) {
        const QModelIndex index = model.appendItem(parent, texts()[node++]);
        if (level + 1 < fanOut.size())
            fill(model, index, level + 1, node);
    }
}

void build(TextTree& model)
{
    std::size_t node = 0;
    model.beginBatchChanges();
    fill(model, {}, 0, node);
    model.endBatchChanges();
}

void fill(QStandardItem& parent, std::size_t level, std::size_t& node)
{
    for (int row = 0; row < fanOut[level]; ++row) {
        auto* item = new QStandardItem(texts()[node++]);
        if (level + 1 < fanOut.size())
            fill(*item, level + 1, node);
        parent.appendRow(item);
    }
}

/// Branch by branch, each filled before the model has it: the model's way to signal no single row.
void build(QStandardItemModel& model)
{
    std::size_t node = 0;
    fill(*model.invisibleRootItem(), 0, node);
}

struct Visited
{
    int count = 0;
    qint64 rowSum = 0;
};

Visited walk(const TextTree& model)
{
    Visited visited;
    for (auto place = model.begin(); place != model.end(); ++place) {
        ++visited.count;
        visited.rowSum += (*place).row();
    }
    return visited;
}

void walkBelow(const QStandardItemModel& model, const QModelIndex& parent, Visited& visited)
{
    const int count = model.rowCount(parent);
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        ++visited.count;
        visited.rowSum += index.row();
        walkBelow(model, index, visited);
    }
}

Visited walk(const QStandardItemModel& model)
{
    Visited visited;
    walkBelow(model, {}, visited);
    return visited;
}

/// The indexes of all nodes in pre-order, or in an order that is random and always the same.
std::vector<QModelIndex> allIndexes(const QAbstractItemModel& model, bool isShuffled)
{
    std::vector<QModelIndex> result;
    for (velm::TreeIterator place(&model, {}); place != velm::TreeIterator(); ++place)
        result.push_back(*place);
    if (isShuffled)
        std::shuffle(result.begin(), result.end(), std::mt19937(1)); // NOLINT: the same each time
    return result;
}

bool insertRow(TextTree& model, int row, const QString& text)
{
    return model.insertItem({}, row, text).row() == row;
}

bool insertRow(QStandardItemModel& model, int row, const QString& text)
{
    auto* item = new QStandardItem(text);
    model.insertRow(row, item);
    return item->index().row() == row;
}

template <typename Model>
void measureBuild(benchmark::State& state)
{
    texts();
    Model model;
    for (auto _ : state)
        build(model);
    verify(walk(model).count == nodeCount, "building");
}

template <typename Model>
void measureBytes(benchmark::State& state)
{
    texts();
    Model model;
    const double before = allocatedBytes();
    for (auto _ : state)
        build(model);
    setBytes(state, (allocatedBytes() - before) / nodeCount);
}

template <typename Model>
void measureWalk(benchmark::State& state)
{
    Model model;
    build(model);
    Visited visited;
    for (auto _ : state)
        visited = walk(model);
    verify(visited.count == nodeCount && visited.rowSum == expectedRowSum(false), "walking");
}

template <typename Model>
void measureParent(benchmark::State& state, bool isShuffled)
{
    Model model;
    build(model);
    const std::vector<QModelIndex> indexes = allIndexes(model, isShuffled);
    const QAbstractItemModel& plain = model;
    qint64 rowSum = 0;
    for (auto _ : state)
        for (const QModelIndex& index : indexes)
            rowSum += plain.parent(index).row();
    // The top-level rows have no parent: -1 each.
    verify(rowSum == expectedRowSum(true) - fanOut[0], "asking for parents");
}

template <typename Model>
void measureInsert(benchmark::State& state, bool atEnd)
{
    texts();
    Model model;
    int right = 0;
    for (auto _ : state)
        for (int count = 0; count < insertCount; ++count)
            right += insertRow(model, atEnd ? count : 0, texts()[static_cast<std::size_t>(count)]);
    verify(right == insertCount && model.rowCount() == insertCount, "inserting");
    verify(model.index(0, 0).data() == texts()[static_cast<std::size_t>(atEnd ? 0 : insertCount - 1)],
           "inserting in order");
}

template <typename Model>
Workload parentWorkload(bool isShuffled)
{
    return [isShuffled](benchmark::State& state) { measureParent<Model>(state, isShuffled); };
}

template <typename Model>
Workload insertWorkload(bool atEnd)
{
    return [atEnd](benchmark::State& state) { measureInsert<Model>(state, atEnd); };
}
} // namespace

void addTreeModels()
{
    using Standard = QStandardItemModel;
    compare("tree: build one million nodes in a batch", measureBuild<TextTree>, measureBuild<Standard>);
    compare("tree: walk one million nodes in pre-order", measureWalk<TextTree>, measureWalk<Standard>);
    compare("tree: one million parent() calls, row by row", parentWorkload<TextTree>(false),
            parentWorkload<Standard>(false));
    compare("tree: one million parent() calls in random order", parentWorkload<TextTree>(true),
            parentWorkload<Standard>(true));
    compare("tree: insert ten thousand rows at the front", insertWorkload<TextTree>(false),
            insertWorkload<Standard>(false));
    compare("tree: insert ten thousand rows at the end", insertWorkload<TextTree>(true),
            insertWorkload<Standard>(true));
    compareBytes("tree: bytes a node", measureBytes<TextTree>, measureBytes<Standard>);
}
} // namespace velmbench
