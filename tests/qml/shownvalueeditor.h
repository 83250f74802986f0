#pragma once

#include "showncombo.h"
#include "support/scopes.h"
#include "velm/filter/abstractfilterpropertiesmodel.h"

#include <QJSValue>

namespace velmtest {
/// One property of each kind, whose row is the kind's number.
class EveryKind : public velm::AbstractFilterPropertiesModel
{
    Q_OBJECT
public:
    using Kind = velm::filter::EDefaultValueType;

    QStringList values{QStringLiteral("Wall"), QStringLiteral("Door & frame"), QStringLiteral("Beam")};
    QString unit = QStringLiteral("mm");

    int getNrProperties() const override { return static_cast<int>(Kind::Transparency) + 1; }
    QString getName(int index) const override { return getValueType(index); }
    QString getValueType(int index) const override { return velm::filter::getValueTypeName(static_cast<Kind>(index)); }
    QStringList getValues(int index) const override
    {
        const bool isBoolean = static_cast<Kind>(index) == Kind::Boolean;
        return isBoolean ? AbstractFilterPropertiesModel::getValues(index) : values;
    }
    QString getUnit(int /*index*/) const override { return unit; }
    void tellOfChange() { Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0)); }
};

/// The editor of one kind of values as an owner shows it: what it tells of becomes the value, when the owner takes it.
class ShownValueEditor : public QObject
{
    Q_OBJECT
public:
    using Kind = EveryKind::Kind;

    explicit ShownValueEditor(Kind kind, const QVariant& value, ComboHost* host = nullptr)
        : m_functions(functionsOf(host))
    {
        m_shown.emplace(m_engine.load(
            "import Tandolin.API.Controls.Private\nimport Tandolin.API.Core.Themes.Engine\n"
            "Pane { id: root; implicitWidth: 320; implicitHeight: 360\n"
            "property var properties; property int row; property var value; property var owner\n"
            "property int escaped: 0; Keys.onEscapePressed: ++escaped\n"
            "function setTheme(theme: int) { Theme.setColorTheme(theme) }\n"
            "Loader { id: loader; objectName: 'loader'; width: 260\n"
            "Component.onCompleted: setSource(root.properties.getComponentUrl(root.row).url, { value: root.value,\n"
            "propertiesModel: root.properties, propertyIndex: root.row, settings: undefined }) }\n"
            "Binding { target: loader.item; property: 'value'; value: root.value }\n"
            "Connections { target: loader.item; function onEdited(newValue) { root.owner.edited(newValue) }\n"
            "function onAccepted() { root.owner.accepted() } }\n"
            "TextField { objectName: 'other'; y: 300 } }",
            {{QStringLiteral("properties"), QVariant::fromValue<QObject*>(&properties)},
             {QStringLiteral("row"), static_cast<int>(kind)},
             {QStringLiteral("owner"), QVariant::fromValue<QObject*>(this)},
             {QStringLiteral("value"), value}}));
        if (!editor())
            qFatal("There is no editor");
        takeFocus();
    }

    Shown& shown() { return *m_shown; }
    QQuickItem* editor() const { return find("loader")->property("item").value<QQuickItem*>(); }
    /// Also what a repeater or a list made.
    QQuickItem* find(const char* name) const
    {
        auto* page = qobject_cast<QQuickItem*>(m_shown->page());
        return findBelow(page, QString::fromLatin1(name));
    }
    QString text(const char* field = "field") const { return property("text", field).toString(); }
    bool isMarked() const { return find("errorFrame")->isVisible(); }
    int escaped() const { return m_shown->page()->property("escaped").toInt(); }
    /// How many suggestions are listed now.
    int suggestionCount() const
    {
        return suggestions()->property("opened").toBool() ? suggestionList()->property("count").toInt() : 0;
    }
    void clickSuggestion(int row)
    {
        m_shown->window()->grabWindow();
        m_shown->click(itemAt(suggestionList(), row));
    }
    /// The texts of the list of checks, the checked ones with an x in front.
    QStringList checks()
    {
        m_shown->window()->grabWindow();
        QStringList texts;
        for (int row = 0; row < checkList()->property("count").toInt(); ++row)
            if (const QQuickItem* item = itemAt(checkList(), row))
                texts += (item->property("checked").toBool() ? QLatin1String("x ") : QLatin1String()) +
                         item->property("modelData").toString();
        return texts;
    }
    void clickCheck(int row) { m_shown->click(itemAt(checkList(), row)); }
    QVariant property(const char* name, const char* of) const { return find(of)->property(name); }
    void takeFocus() { QMetaObject::invokeMethod(editor(), "takeFocus"); }
    void leave() { find("other")->forceActiveFocus(); }
    void setValue(const QVariant& value) { m_shown->page()->setProperty("value", value); }
    QVariant value() const { return m_shown->page()->property("value"); }
    QVariant last() const { return told.isEmpty() ? QVariant() : told.last(); }

    Q_INVOKABLE void edited(const QVariant& newValue)
    {
        // A list comes as a value of the script.
        const bool isScript = newValue.metaType() == QMetaType::fromType<QJSValue>();
        told.append(isScript ? newValue.value<QJSValue>().toVariant() : newValue);
        if (takes)
            setValue(told.last());
    }
    Q_INVOKABLE void accepted() { ++acceptedCount; }

    EveryKind& model() { return properties; }

    QVariantList told; ///< the values that the editor told of
    int acceptedCount = 0;
    bool takes = true;

private:
    static QQuickItem* findBelow(QQuickItem* item, const QString& name)
    {
        for (QQuickItem* child : item->childItems()) {
            QQuickItem* found = child->objectName() == name ? child : findBelow(child, name);
            if (found)
                return found;
        }
        return nullptr;
    }
    QQuickItem* checkList() const { return find("list")->property("view").value<QQuickItem*>(); }
    QObject* suggestions() const { return find("field0")->findChild<QObject*>(QStringLiteral("suggestions")); }
    QQuickItem* suggestionList() const
    {
        return findBelow(suggestions()->property("contentItem").value<QQuickItem*>(), QStringLiteral("list"));
    }
    static QQuickItem* itemAt(QQuickItem* list, int row)
    {
        QQuickItem* found = nullptr;
        QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, found), Q_ARG(int, row));
        return found;
    }
    static velm::ExternalFunctions functionsOf(ComboHost* host)
    {
        velm::ExternalFunctions functions;
        if (host) {
            functions.guiController = [host] { return &host->gui; };
            functions.dlgFactory = [host] { return &host->dialogs; };
        }
        return functions;
    }

    ScopedExternalFunctions m_functions;
    PageEngine m_engine;
    EveryKind properties;
    std::optional<Shown> m_shown;
};
} // namespace velmtest
