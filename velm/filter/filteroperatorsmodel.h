#pragma once

#include "velm/velm_export.h"

#include <QAbstractListModel>

#include <map>
#include <vector>

namespace velm {
/// The operators that suit one category of properties, for the operator combo of a tag's editor, and the closed set of
/// operators itself. Texts are in the language of the first use, for the life of the process.
class VELM_EXPORT FilterOperatorsModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(CategoryType category READ getCategory WRITE setCategory NOTIFY categoryChanged)
public:
    /// A set of bits.
    enum CategoryType : int
    {
        NoCategory = 0,
        String = 1, ///< a single text
        Number = 2,
        Enum = 4,           ///< a choice from a list
        StringMultiple = 8, ///< a text that may hold several items
        All = 15,
    };
    Q_ENUM(CategoryType)

    enum Operator : int
    {
        Is = 0,
        IsNot = 1,
        Equal = 2,
        NotEqual = 3,
        Contains = 4,
        DoesNotContain = 5,
        Matches = 6,
        DoesNotMatch = 7,
        Greater = 8,
        Less = 9,
        GreaterOrEqual = 10,
        LessOrEqual = 11,
    };
    Q_ENUM(Operator)

    struct OperatorData
    {
        QString string;     ///< what a tag shows
        QString icon;       ///< a file name; the page knows the folder
        QString iconString; ///< a word for the icon
        int category = 0;   ///< the mask of the categories that have the operator
    };

    /// The roles begin at 0 on purpose: Qt's own numbers are used anew.
    enum Role
    {
        EnumRole = 0,
        StringRole,
        CategoryRole,
        IconRole,
        IconStringRole,
        TopPaddingRole,
        BottomPaddingRole,
        IconWidthRole,
        IconHeightRole,
    };

    /// Without rows until a category is set.
    explicit FilterOperatorsModel(QObject* parent = nullptr);
    ~FilterOperatorsModel() override;

    CategoryType getCategory() const { return m_category; }
    /// Nothing for the present category: a new model stays without rows at NoCategory, which otherwise lists all
    /// operators. This must stay.
    void setCategory(CategoryType category);

    /// The row, or -1.
    Q_INVOKABLE int indexOfOperator(velm::FilterOperatorsModel::Operator op) const;
    // Both empty for a row that isn't there.
    Q_INVOKABLE QString getComboIcon(int index) const;
    Q_INVOKABLE QString getComboToolTip(int index) const;

    /// The operators that have all bits of the category, and so all of them for NoCategory.
    static std::vector<Operator> getOperatorsForCategory(CategoryType category);

    /// Whatever the parent.
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

public Q_SLOTS:
    static QString getStringRepresentation(velm::FilterOperatorsModel::Operator op);

Q_SIGNALS:
    void categoryChanged();

private:
    friend class DefaultTagFormatter;

    static const std::map<Operator, OperatorData>& getOperators();
    /// Empty texts and category 0 for an unknown operator.
    static OperatorData getOperatorData(Operator op);

    std::vector<Operator> m_operators;
    CategoryType m_category = NoCategory;
};
} // namespace velm
