import QtQuick
import QtQuick.Controls
import Tandolin
import Tandolin.API.Controls
import Tandolin.API.Resources
PanelPage {
    width: 600; height: 800
    Column {
        Button { text: "&Button"; highlighted: true } ToolButton { text: "Tool" } CheckBox { tristate: true }
        RadioButton {} Switch {} TextField { placeholderText: "Name" } TextArea {} Slider {} ProgressBar {}
        BusyIndicator {} Label {} Frame {} GroupBox { title: "Group" } ScrollIndicator {} ToolBar {} ToolSeparator {}
        ComboBox { editable: true; model: ["a", "b"] } SpinBox {} CheckDelegate {} ItemDelegate {}
        TabBar { TabButton { text: "Tab" } } ScrollView { TextArea {} } SplitView { Item {} Item {} }
        Menu { MenuItem { text: "&Item" } MenuSeparator {} Menu { title: "More"; MenuItem { checkable: true } } }
        Popup { Label {} } ToolTip {}
        IconButton { mark: "add"; text: "Add" } IconButton { toolIcon: "line"; text: "Line" } SearchField {} ColorSwatch { diagonal: true } DialogButtons {}
        PlainListView { model: ["a", "b"] } ModelTable {} PlaceholderMessage { mark: "info"; text: "Nothing" } Mark { name: "check" }
        ColorCombo { model: null } LineTypeCombo { model: null } LineWeightCombo { model: null } ArrowHeadCombo { model: null }
        Label { text: Settings.tooltipDelay + QtFontConfig.defaultRenderType }
    }
}