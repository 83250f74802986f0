#include "bench/comparison.h"

#include "velm/models/stringlistmodel.h"

#include <QStringListModel>

namespace velmbench {
namespace {
constexpr int rowCount = 1'000'000;

/// Made beforehand, since both models share the texts that they are given.
const std::vector<QString>& texts()
{
    static const std::vector<QString> result = [] {
        std::vector<QString> made;
        made.reserve(rowCount);
        for (int row = 0; row < rowCount; ++row)
            made.push_back(QString::number(row));
        return made;
    }();
    return result;
}

void appendOne(velm::StringListModel& model, const QString& text)
{
    model.append(QString(text));
}

void appendOne(QStringListModel& model, const QString& text)
{
    const int row = model.rowCount();
    model.insertRow(row);
    model.setData(model.index(row), text);
}

void appendRange(velm::StringListModel& model)
{
    model.append(std::vector<QString>(texts()));
}

/// The model can't insert rows with their texts, and setting all of them at once would be a reset.
void appendRange(QStringListModel& model)
{
    model.insertRows(0, rowCount);
    for (int row = 0; row < rowCount; ++row)
        model.setData(model.index(row), texts()[static_cast<std::size_t>(row)]);
}

void verifyRows(const QAbstractItemModel& model)
{
    bool isRight = model.rowCount() == rowCount;
    for (int row = 0; isRight && row < rowCount; row += 997)
        isRight = model.index(row, 0).data() == texts()[static_cast<std::size_t>(row)];
    verify(isRight, "appending");
}

template <typename Model>
void measureSingle(benchmark::State& state)
{
    texts();
    Model model;
    for (auto _ : state)
        for (const QString& text : texts())
            appendOne(model, text);
    verifyRows(model);
}

template <typename Model>
void measureRange(benchmark::State& state)
{
    texts();
    Model model;
    for (auto _ : state)
        appendRange(model);
    verifyRows(model);
}
} // namespace

void addListModels()
{
    using velm::StringListModel;
    compare("list: append one million rows one by one", measureSingle<StringListModel>,
            measureSingle<QStringListModel>);
    compare("list: append one million rows as a range", measureRange<StringListModel>, measureRange<QStringListModel>);
}
} // namespace velmbench
