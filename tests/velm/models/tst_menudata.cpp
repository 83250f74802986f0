#include "velm/models/menudata.h"

#include <QTest>

using namespace velm;

namespace {
using Plain = std::function<void()>;
using WithData = std::function<void(const MenuData&)>;

MenuData withFlags(MenuData::EFlags flags)
{
    return MenuData("text", {}, {}, {}, {}, flags);
}
} // namespace

class TestMenuData : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatIsNotGivenIsADefault()
    {
        const MenuData separator;
        QCOMPARE(separator.type, "separator");
        QCOMPARE(separator.flags, MenuData::Enabled);
        QCOMPARE(separator.menuId, -1);
        QCOMPARE(separator.command.index(), 0u);
        QCOMPARE(MenuData::separator().type, "separator");
        const MenuData title = MenuData::title("head");
        QCOMPARE(title.type, "title");
        QCOMPARE(title.text, "head");
        QCOMPARE(title.flags, MenuData::Enabled);
        const MenuData entry("open", Plain());
        QCOMPARE(entry.type, "text");
        QCOMPARE(entry.flags, MenuData::Enabled);
        QCOMPARE(entry.menuId, -1);
        QVERIFY(!entry.bitmap && !entry.update && entry.userData.isNull());
        QCOMPARE(MenuData("open", Plain(), "submenu").type, "submenu");
    }

    void aMarkNeedsACheckableEntry()
    {
        using Data = MenuData;
        QCOMPARE(withFlags(Data::toChecked(true)).flags, Data::NoFlags);
        QCOMPARE(withFlags(Data::toEnabled(true) | Data::toCheckable(false) | Data::toChecked(true)).flags,
                 Data::Enabled);
        MenuData entry = withFlags(Data::toEnabled(false) | Data::toCheckable(true) | Data::toChecked(true));
        QCOMPARE(static_cast<int>(entry.flags), 2 + 4);
        QVERIFY(entry.isChecked() && !entry.isEnabled());
        // The mark waits while the entry isn't checkable, and can't be taken away then.
        entry.setCheckable(false);
        QVERIFY(!entry.isChecked());
        QCOMPARE(static_cast<int>(entry.flags), 4);
        entry.setChecked(false);
        entry.setCheckable(true);
        QVERIFY(entry.isChecked());
        entry.setChecked(false);
        QVERIFY(!entry.isChecked() && entry.isCheckable());
        entry.setEnabled(true);
        QCOMPARE(static_cast<int>(entry.flags), 1 + 2);
        entry.setEnabled(false);
        entry.setCheckable(false);
        entry.setChecked(true);
        QCOMPARE(static_cast<int>(entry.flags), 0);
    }

    void aCommandRunsWithOrWithoutTheRecord()
    {
        int runs = 0;
        const MenuData plain("a", Plain([&] { ++runs; }));
        plain.execute();
        plain.execute();
        QCOMPARE(runs, 2);
        const MenuData* seen = nullptr;
        const MenuData told("b", WithData([&](const MenuData& data) { seen = &data; }));
        told.execute();
        QCOMPARE(seen, &told);
        // Nothing to run is no error.
        MenuData("c", Plain()).execute();
        MenuData("d", WithData()).execute();
        MenuData().execute();
    }

    void aCopyHasAnImageOfItsOwn()
    {
        MenuData original("open", Plain([] {}), "text", "tip", "icon", MenuData::Checkable, 5, [](MenuData&) {});
        original.bitmap = std::make_unique<QImage>(2, 2, QImage::Format_RGB32);
        original.bitmap->fill(Qt::red);
        original.extraText = "extra";
        original.shortcut = "F1";
        original.menuId = 7;
        const uchar* pixels = original.bitmap->constBits();

        MenuData copy;
        copy = original;
        QVERIFY(copy.bitmap->constBits() != pixels);
        QCOMPARE(*copy.bitmap, *original.bitmap);
        const auto isWhole = [](const MenuData& data) {
            return data.type == "text" && data.text == "open" && data.tooltip == "tip" && data.icon == "icon" &&
                   data.extraText == "extra" && data.shortcut == "F1" && data.menuId == 7 &&
                   data.flags == MenuData::Checkable && data.userData == QVariant(5) && data.update &&
                   std::get<Plain>(data.command) && data.bitmap;
        };
        QVERIFY(isWhole(copy));
        copy = *&copy;
        QVERIFY(isWhole(copy));
        const MenuData moved = std::move(original);
        QVERIFY(isWhole(moved));
        QCOMPARE(moved.bitmap->constBits(), pixels);
        copy = MenuData();
        QVERIFY(!copy.bitmap);
    }
};

QTEST_APPLESS_MAIN(TestMenuData)
#include "tst_menudata.moc"
