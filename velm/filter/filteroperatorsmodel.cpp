#include "velm/filter/filteroperatorsmodel.h"

#include <algorithm>

namespace velm {
namespace {
constexpr int rowPadding = 2;
constexpr int iconSize = 18;
} // namespace

FilterOperatorsModel::FilterOperatorsModel(QObject* parent) : QAbstractListModel(parent)
{}

FilterOperatorsModel::~FilterOperatorsModel() = default;

const std::map<FilterOperatorsModel::Operator, FilterOperatorsModel::OperatorData>& FilterOperatorsModel::getOperators()
{
    constexpr int choice = String | Enum | StringMultiple;
    constexpr int text = String | StringMultiple;
    // The numeric operators share the icons of the textual ones, and their words.
    static const std::map<Operator, OperatorData> operators = {
        {Is, {QObject::tr("is"), "is.svg", QObject::tr("is"), choice}},
        {IsNot, {QObject::tr("is not"), "is-not.svg", QObject::tr("is not"), choice}},
        {Equal, {"=", "is.svg", QObject::tr("is"), Number}},
        {NotEqual, {"≠", "is-not.svg", QObject::tr("is not"), Number}},
        {Contains, {QObject::tr("contains"), "contains.svg", QObject::tr("contains"), text}},
        {DoesNotContain,
         {QObject::tr("does not contain"), "does-not-contain.svg", QObject::tr("does not contain"), text}},
        {Matches, {QObject::tr("matches"), "matches.svg", QObject::tr("matches"), StringMultiple}},
        {DoesNotMatch,
         {QObject::tr("does not match"), "does-not-match.svg", QObject::tr("does not match"), StringMultiple}},
        {Greater, {">", "bigger-than.svg", QObject::tr("greater"), Number}},
        {Less, {"<", "smaller-than.svg", QObject::tr("less"), Number}},
        {GreaterOrEqual, {"≥", "bigger-than-equal.svg", QObject::tr("greater or equal"), Number}},
        {LessOrEqual, {"≤", "smaller-than-equal.svg", QObject::tr("less or equal"), Number}},
    };
    return operators;
}

FilterOperatorsModel::OperatorData FilterOperatorsModel::getOperatorData(Operator op)
{
    const auto entry = getOperators().find(op);
    return entry == getOperators().end() ? OperatorData() : entry->second;
}

std::vector<FilterOperatorsModel::Operator> FilterOperatorsModel::getOperatorsForCategory(CategoryType category)
{
    std::vector<Operator> result;
    for (const auto& [op, data] : getOperators())
        if ((data.category & category) == category || data.category == All || category == All)
            result.push_back(op);
    return result;
}

QString FilterOperatorsModel::getStringRepresentation(Operator op)
{
    return getOperatorData(op).string;
}

void FilterOperatorsModel::setCategory(CategoryType category)
{
    if (m_category == category)
        return;
    m_category = category;
    beginResetModel();
    m_operators = getOperatorsForCategory(category);
    endResetModel();
    Q_EMIT categoryChanged();
}

int FilterOperatorsModel::indexOfOperator(Operator op) const
{
    const auto place = std::find(m_operators.begin(), m_operators.end(), op);
    return place == m_operators.end() ? -1 : static_cast<int>(place - m_operators.begin());
}

QString FilterOperatorsModel::getComboIcon(int index) const
{
    return data(createIndex(index, 0), IconRole).toString();
}

QString FilterOperatorsModel::getComboToolTip(int index) const
{
    const QVariant op = data(createIndex(index, 0), EnumRole);
    if (!op.isValid())
        return {};
    switch (static_cast<Operator>(op.toInt())) {
    case Is:
        return tr("Value is the specified text.");
    case IsNot:
        return tr("Value is not the specified text.");
    case Contains:
        return tr("Value contains the specified text.");
    case DoesNotContain:
        return tr("Value does not contain the specified text.");
    case Matches:
        return tr("Value matches the specified wildcard pattern.");
    case DoesNotMatch:
        return tr("Value does not match the specified wildcard pattern.");
    default:
        return getOperatorData(static_cast<Operator>(op.toInt())).iconString;
    }
}

int FilterOperatorsModel::rowCount(const QModelIndex& /*parent*/) const
{
    return static_cast<int>(m_operators.size());
}

QVariant FilterOperatorsModel::data(const QModelIndex& index, int role) const
{
    if (index.row() < 0 || index.row() >= rowCount())
        return {};
    const Operator op = m_operators[static_cast<std::size_t>(index.row())];
    switch (role) {
    case EnumRole:
        return static_cast<int>(op);
    case StringRole:
        return getOperatorData(op).string;
    case CategoryRole:
        return getOperatorData(op).category;
    case IconRole:
        return getOperatorData(op).icon;
    case IconStringRole:
        return getOperatorData(op).iconString;
    case TopPaddingRole:
    case BottomPaddingRole:
        return rowPadding;
    case IconWidthRole:
    case IconHeightRole:
        return iconSize;
    default:
        return {};
    }
}

QHash<int, QByteArray> FilterOperatorsModel::roleNames() const
{
    return {{EnumRole, "enum"},
            {StringRole, "string"},
            {CategoryRole, "category"},
            {IconRole, "icon"},
            {IconStringRole, "iconString"},
            {TopPaddingRole, "topPadding"},
            {BottomPaddingRole, "bottomPadding"},
            {IconWidthRole, "iconWidth"},
            {IconHeightRole, "iconHeight"}};
}
} // namespace velm
