#pragma once

#include "shownpage.h"
#include "support/fakefilterproperties.h"
#include "velm/filter/filtermanagerbuttonscontroller.h"
#include "velm/filter/filterpopupcontroller.h"
#include "velm/filter/filtertagsconjunctionmodel.h"
#include "velm/filter/filtertagsmodel.h"

namespace velmtest {
/// Nine properties of entities; favourites are kept in memory alone. What is picked from the drawing is `picked`, an
/// invalid value where the selected thing has none.
class FilterProperties : public FakeFilterProperties
{
public:
    bool canPick = false;
    QVariant picked;

    enum Row
    {
        Layer,
        Type,
        Visible,
        Length,
        Radius,
        Text,
        Height,
        Block,
        Hyperlink,
    };

    FilterProperties()
        : FakeFilterProperties({{{}, "Layer", "stringMultiple", {"General"}, {"Walls", "Doors"}},
                                {{}, "Type", "enum", {"General"}, {"Line", "Circle", "Arc", "Text"}},
                                {{}, "Visible", "boolean", {"General"}, {}},
                                {{}, "Length", "real", {"Geometry"}, {}, "mm"},
                                {{}, "Radius", "real", {"Geometry"}, {}, "mm"},
                                {{}, "Contents", "string", {"Text"}, {}},
                                {{}, "Height", "real", {"Text", "Style"}, {}, "mm"},
                                {{}, "Name", "stringMultiple", {"Block"}, {}},
                                {{}, "Hyperlink", "string", {}, {}}})
    {}

    QString getFullPathName(int index, bool withUnit) const override
    {
        const QString unit = withUnit && !getUnit(index).isEmpty() ? " [" + getUnit(index) + "]" : QString();
        return (getPath(index) + QStringList(getName(index))).join(" > ") + unit;
    }
    bool isHierarchical() const override { return true; }
    bool hasPipet() const override { return true; }
    bool pipetEnabled() const override { return canPick; }
    QVariantMap pipet(int) override { return {{"success", picked.isValid()}, {"value", picked}}; }
    oc::PropertyFilterFactoriesManager* getPropertyFilterFactoriesManager() const override { return m_manager.get(); }

private:
    std::unique_ptr<oc::PropertyFilterFactoriesManager> m_manager =
        std::make_unique<oc::PropertyFilterFactoriesManager>();
};

/// The filter's panel in a window, with the models of its host.
class ShownFilter
{
public:
    explicit ShownFilter(velm::FilterManagerButtonsController* buttons = nullptr, int width = 300)
        : m_shown(m_engine.load(
              QStringLiteral(
                  "import Tandolin.API.Core.Themes.Engine\n"
                  "PanelPage { id: page; implicitWidth: %1; implicitHeight: 520\n"
                  "function setTheme(theme) { Theme.setColorTheme(theme) }\n"
                  "property var tagsModel; property var propertiesModel; property var popup\n"
                  "property var buttons: null; property alias filter: filter\n"
                  "PropertyFilter { id: filter; anchors.fill: parent; focus: true; tagsModel: page.tagsModel\n"
                  "propertiesModel: page.propertiesModel; popup: page.popup; buttons: page.buttons } }")
                  .arg(width)
                  .toUtf8(),
              {{"tagsModel", QVariant::fromValue<QObject*>(&tags)},
               {"propertiesModel", QVariant::fromValue<QObject*>(&properties)},
               {"popup", QVariant::fromValue<QObject*>(&popup)},
               {"buttons", QVariant::fromValue<QObject*>(buttons)}}))
    {
        m_shown.window()->resize(width, 520);
    }

    FilterProperties properties;
    velm::FilterTagsModel tags{properties, nullptr};
    velm::FilterPopupController popup;

    Shown& shown() { return m_shown; }
    QObject* page() const { return m_shown.page(); }
    /// Items of popups, too, which are no children of the page's items.
    QQuickItem* item(const QString& name) const { return find({}, "objectName", name); }
    QObject* object(const char* name) const { return page()->findChild<QObject*>(QString::fromLatin1(name)); }
    bool isOpen(const char* popup) const { return object(popup)->property("opened").toBool(); }
    /// A click on the item, which may stand in another one.
    void click(const QString& name, const QString& below = {}) { click(find(below, "objectName", name)); }
    /// A click on the row of a list, or on the item in that row.
    void clickRow(const QString& list, const QString& text, const QString& name = {})
    {
        QTRY_VERIFY2(find(list, "text", text), qPrintable(text));
        QQuickItem* row = find(list, "text", text);
        click(!name.isEmpty() ? findBelow(row, "objectName", name) : row);
    }
    /// The texts of the rows of a list.
    QStringList rows(const QString& list) const
    {
        QStringList texts;
        const auto* view = item(list)->property("view").value<QQuickItem*>();
        for (int row = 0; row < view->property("count").toInt(); ++row) {
            QQuickItem* delegate = nullptr;
            QMetaObject::invokeMethod(const_cast<QQuickItem*>(view), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, delegate),
                                      Q_ARG(int, row));
            texts += delegate ? delegate->property("text").toString() : QString();
        }
        return texts;
    }
    /// "layer is a and length > 1 or color is 2", as the chips say it.
    QString text() const
    {
        QStringList alternatives;
        for (int row = 0; row < tags.rowCount(); ++row) {
            QStringList conditions;
            for (int tag = 0; item(chipName(row, tag)); ++tag)
                conditions += item(chipName(row, tag))->property("text").toString();
            alternatives += conditions.join(" and ");
        }
        return alternatives.join(" or ");
    }
    static QString chipName(int conjunction, int tag) { return QStringLiteral("chip%1_%2").arg(conjunction).arg(tag); }

private:
    void click(QQuickItem* item)
    {
        QVERIFY(item);
        m_shown.click(item);
    }
    QQuickItem* find(const QString& below, const char* property, const QString& value) const
    {
        QQuickItem* top = const_cast<Shown&>(m_shown).window()->contentItem();
        if (!below.isEmpty())
            top = findBelow(top, "objectName", below);
        return top ? findBelow(top, property, value) : nullptr;
    }
    static QQuickItem* findBelow(QQuickItem* item, const char* property, const QString& value)
    {
        if (item->property(property).toString() == value)
            return item;
        for (QQuickItem* child : item->childItems())
            if (QQuickItem* found = findBelow(child, property, value))
                return found;
        return nullptr;
    }

    PageEngine m_engine;
    Shown m_shown;
};
} // namespace velmtest
