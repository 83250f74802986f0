#include "velm/models/iitemlistmodel.h"
#include "velm/models/ilistitemlistmodel.h"

#include "support/table.h"
#include "support/vtableslots.h"
#include "velm/models/menumodel.h"

#include <QTest>

using namespace velm;

namespace {
/// An item whose answers all differ and that writes down what it is told.
class Item : public IListItem
{
public:
    QString getName() const override { return "name"; }
    QString getLeftIconSource() const override { return "left"; }
    QString getRightIconSource() const override { return "right"; }
    QString getRightIconToolTip() const override { return "tip"; }
    bool getShowNameEdit() const override { return showNameEdit; }
    bool isChecked() const override { return checked; }
    bool isEditable() const override { return editable; }
    QString getError() const override { return "error"; }
    QString getWarning() const override { return "warning"; }
    QString getInfo() const override { return "info"; }
    MenuModel* getActions() const override { return actions; }
    bool setShowNameEdit(bool show) override { return note("showNameEdit %1", show); }
    bool setName(const QString& name) override { return note("name %1", name); }
    bool setChecked(bool checked) override { return note("checked %1", checked); }

    bool showNameEdit = false;
    bool checked = false;
    bool editable = false;
    MenuModel* actions = nullptr;
    bool takes = true;
    QStringList log;

private:
    template <typename Value>
    bool note(const QString& text, const Value& value)
    {
        log += text.arg(value);
        return takes;
    }
};

/// A list of one item, in row 1, that writes down how it is looked up.
class Items : public IListItemListModel
{
public:
    IListItem* getItem(int row) override
    {
        lookups += QString("write %1").arg(row);
        return row == 1 ? &item : nullptr;
    }
    const IListItem* getItem(int row) const override
    {
        lookups += QString("read %1").arg(row);
        return row == 1 ? &item : nullptr;
    }

    Item item;
    mutable QStringList lookups;
};

class NamesOnly : public IItemListModel
{
public:
    QString getName(int row) const override { return QString::number(row); }
};

class NameOnly : public IListItem
{
public:
    QString getName() const override { return {}; }
};

/// All roles of a row by number, as "0 itemName QString(name)".
QStringList roles(const IItemListModel& model, int row)
{
    QStringList result;
    const auto names = model.getItemRoleNames();
    for (int role = -1; role <= 12; ++role) {
        const QVariant value = model.getItemData(row, role);
        if (value.isValid() || names.contains(role))
            result += QString("%1 %2 %3(%4)")
                          .arg(role)
                          .arg(QString::fromLatin1(names.value(role)), value.typeName(), value.toString());
    }
    return result;
}

#ifdef VELM_READS_VTABLES
template <typename Interface>
QList<std::ptrdiff_t> commonSlots()
{
    using velmtest::slotOf;
    return {slotOf(&Interface::getName),
            slotOf(&Interface::getLeftIconSource),
            slotOf(&Interface::getRightIconSource),
            slotOf(&Interface::getRightIconToolTip),
            slotOf(&Interface::getShowNameEdit),
            slotOf(&Interface::isChecked),
            slotOf(&Interface::isEditable),
            slotOf(&Interface::getError),
            slotOf(&Interface::getWarning),
            slotOf(&Interface::getInfo),
            slotOf(&Interface::getActions),
            slotOf(&Interface::setShowNameEdit),
            slotOf(&Interface::setName),
            slotOf(&Interface::setChecked)};
}
#endif
} // namespace

class TestIItemListModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eachRoleReadsItsOperation()
    {
        Items items;
        MenuModel actions;
        items.item.actions = &actions;
        QCOMPARE(roles(items, 1), QStringList({"0 itemName QString(name)", "1 itemLeftIcon QString(left)",
                                               "2 itemRightIcon QString(right)", "3 itemRightIconToolTip QString(tip)",
                                               "5 itemShowNameEdit bool(false)", "6 itemIsChecked bool(false)",
                                               "7 itemIsEditable bool(false)", "8 itemError QString(error)",
                                               "9 itemWarning QString(warning)", "10 itemInfo QString(info)",
                                               "11 itemActions velm::MenuModel*()"}));
        QCOMPARE(items.getItemData(1, IItemListModel::ActionsRole).value<MenuModel*>(), &actions);
        QCOMPARE(items.lookups, QStringList(12, "read 1"));
        items.item.showNameEdit = true;
        QCOMPARE(roles(items, 1).filter("(true)"), QStringList{"5 itemShowNameEdit bool(true)"});
        items.item.showNameEdit = false;
        items.item.checked = true;
        QCOMPARE(roles(items, 1).filter("(true)"), QStringList{"6 itemIsChecked bool(true)"});
        items.item.checked = false;
        items.item.editable = true;
        QCOMPARE(roles(items, 1).filter("(true)"), QStringList{"7 itemIsEditable bool(true)"});
    }

    void aRowWithoutAnItemReadsAsNothing()
    {
        Items items;
        const QString typed = roles(items, 0).join(' ');
        QVERIFY2(!typed.contains("true"), qPrintable(typed)); // not even editable, as a plain item is
        QCOMPARE(typed.count("QString()"), 7);
        QVERIFY(!items.getActions(0));
        QVERIFY(!items.setName(0, "x"));
        QVERIFY(!items.setShowNameEdit(0, true));
        QVERIFY(!items.setChecked(0, true));
        QCOMPARE(items.lookups.filter("write"), QStringList(3, "write 0"));
    }

    void aRoleIsWritten_data()
    {
        const auto row = velmtest::columns<int, QVariant, QString>("role", "value", "told");
        row("a name", 0, "x", "name x");
        row("a name from a number", 0, 7, "name 7");
        row("the present name", 0, "name", QString());
        row("the name's editor", 5, true, "showNameEdit 1");
        row("the name's editor stays closed", 5, false, QString());
        row("the mark", 6, true, "checked 1");
        row("the present mark", 6, false, QString());
        row("nothing is another mark, if false", 6, QVariant(), "checked 0");
        row("whether it can be edited", 7, true, QString());
        row("an icon", 1, "x", QString());
        row("nobody's role", 4, "x", QString());
    }
    void aRoleIsWritten()
    {
        QFETCH(int, role);
        QFETCH(QVariant, value);
        QFETCH(QString, told);
        Items items;
        QCOMPARE(items.setItemData(1, value, role), !told.isEmpty());
        QCOMPARE(items.item.log.join(", "), told);
        QCOMPARE(items.lookups.contains("write 1"), !told.isEmpty());
        items.item.takes = false;
        QVERIFY(!items.setItemData(1, value, role));
    }

    void whatAHostNeedNotSupply()
    {
        NamesOnly names;
        QCOMPARE(roles(names, 3).filter(QRegularExpression("[0-9a-z]\\)$")),
                 QStringList({"0 itemName QString(3)", "5 itemShowNameEdit bool(false)", "6 itemIsChecked bool(false)",
                              "7 itemIsEditable bool(true)"}));
        QVERIFY(!names.setItemData(3, "x", IItemListModel::NameRole));
        QVERIFY(!names.setItemData(3, true, IItemListModel::ShowNameEditRole));
        QVERIFY(!names.setItemData(3, true, IItemListModel::CheckedRole));

        NameOnly name;
        QVERIFY(name.isEditable());
        QVERIFY(!name.getShowNameEdit() && !name.isChecked() && !name.getActions());
        QCOMPARE(name.getLeftIconSource() + name.getRightIconSource() + name.getRightIconToolTip() + name.getError() +
                     name.getWarning() + name.getInfo(),
                 QString());
        QVERIFY(!name.setName("x") && !name.setShowNameEdit(true) && !name.setChecked(true));
    }

    void theOperationsKeepTheirSlots()
    {
#ifdef VELM_READS_VTABLES
        using velmtest::slotOf;
        auto slotNumbers = commonSlots<IItemListModel>();
        slotNumbers += slotOf(static_cast<IListItem* (IListItemListModel::*)(int)>(&IListItemListModel::getItem));
        slotNumbers +=
            slotOf(static_cast<const IListItem* (IListItemListModel::*)(int) const>(&IListItemListModel::getItem));
        QCOMPARE(slotNumbers, velmtest::slotsFrom(slotNumbers.first(), slotNumbers.size()));
        QCOMPARE(commonSlots<IListItem>(), velmtest::slotsFrom(slotNumbers.first(), 14));
#else
        QSKIP("only read where the tables are laid out so");
#endif
    }
};

QTEST_GUILESS_MAIN(TestIItemListModel)
#include "tst_iitemlistmodel.moc"
