import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Window
import Tandolin.API.Controls
import Tandolin.API.Core.Themes

// A picture in the place that the page has for it, by the four modes of placing.
PanelPage {
    id: page

    required property var controller

    helpKey: "images"

    function areaText(area: rect): string {
        return qsTr("%1 x %2 at %3, %4").arg(area.width).arg(area.height).arg(area.x).arg(area.y);
    }

    RowLayout {
        id: content

        anchors.fill: parent
        spacing: Metrics.margin

        ColumnLayout {
            Layout.preferredWidth: 250
            Layout.maximumWidth: 250
            Layout.alignment: Qt.AlignTop
            spacing: Metrics.spacing

            RowLayout {
                spacing: Metrics.spacing

                ComboBox {
                    id: sources

                    // The choices first: they have a say in which index is possible.
                    function show() {
                        model = page.controller.sources;
                        currentIndex = page.controller.source;
                    }

                    objectName: "sources"
                    Layout.fillWidth: true
                    Accessible.name: qsTr("Picture")
                    onActivated: index => page.controller.source = index
                    Component.onCompleted: show()

                    Connections {
                        target: page.controller

                        function onSourcesChanged() {
                            sources.show();
                        }
                        function onSourceChanged() {
                            sources.show();
                        }
                    }
                }
                IconButton {
                    objectName: "openPicture"
                    toolIcon: "open"
                    text: qsTr("Open a picture file")
                    onClicked: page.controller.askForFile()
                }
                HelpButton {
                    key: page.helpKey
                }
            }
            RowLayout {
                Row {
                    spacing: 2

                    Repeater {
                        model: [qsTr("Stretch"), qsTr("Fit"), qsTr("Fill"), qsTr("Zoom")]

                        ToolButton {
                            required property int index
                            required property string modelData

                            objectName: "mode:" + modelData
                            focusPolicy: Qt.TabFocus
                            leftPadding: Metrics.padding
                            rightPadding: Metrics.padding
                            text: modelData
                            checked: preview.mode === index
                            onClicked: preview.mode = index
                        }
                    }
                }
                Item {
                    Layout.fillWidth: true
                }
                CheckBox {
                    id: smoothed

                    objectName: "smoothed"
                    checked: true
                    text: qsTr("&Smooth")
                }
            }
            RowLayout {
                enabled: preview.mode === ResizedImage.Zoom
                spacing: Metrics.spacing

                Slider {
                    id: zoom

                    objectName: "zoom"
                    Layout.fillWidth: true
                    from: -4
                    to: 4
                    stepSize: 0.25
                    snapMode: Slider.SnapAlways
                    Accessible.name: qsTr("Zoom")
                }
                Label {
                    Layout.preferredWidth: 48
                    horizontalAlignment: Text.AlignRight
                    text: qsTr("%1 %").arg(Math.round(100 * Math.pow(2, zoom.value)))
                }
            }
            InfoRows {
                Layout.fillWidth: true
                visible: page.controller.sizeText !== ""
                title: qsTr("In pixels")
                rows: [
                    {
                        label: qsTr("Picture"),
                        value: page.controller.sizeText
                    },
                    {
                        label: qsTr("Part"),
                        value: page.areaText(preview.sourceRect)
                    },
                    {
                        label: qsTr("Place"),
                        value: page.areaText(preview.destinationRect)
                    },
                    {
                        label: qsTr("Whole picture"),
                        value: page.areaText(preview.wholeRect)
                    },
                    {
                        label: qsTr("To wxBitmap and back"),
                        value: page.controller.roundTripText
                    }
                ]
            }
        }
        ColumnLayout {
            spacing: Metrics.spacing

            Label {
                objectName: "pictureProblem"
                Layout.fillWidth: true
                visible: text !== ""
                text: page.controller.problem
                color: Colors.error
                wrapMode: Text.Wrap
            }
            Rectangle {
                Layout.fillWidth: true
                Layout.fillHeight: true
                color: Colors.input
                border.color: Colors.outline

                ResizedImage {
                    id: preview

                    objectName: "preview"
                    anchors.fill: parent
                    anchors.margins: 1
                    image: page.controller.picture
                    zoom: Math.pow(2, -zoom.value)
                    smooth: smoothed.checked
                    chequer: tools.chequer
                    chequerColor: Colors.tabStrip
                    chequerBackground: Colors.background
                }
                PlaceholderMessage {
                    objectName: "noPicture"
                    anchors.centerIn: parent
                    width: Math.min(parent.width, implicitWidth)
                    visible: page.controller.sizeText === ""
                    mark: "folder"
                    text: qsTr("Open a drawing to see its preview, or choose another picture.")
                }
            }
        }
    }
    DeveloperTools {
        id: tools

        target: content
    }
    Connections {
        target: page.controller

        function onOutdatedChanged() {
            preview.update();
        }
    }
    // A picture is made only for a page that is seen.
    Connections {
        target: page.Window.window

        function onAfterAnimating() {
            page.controller.update();
        }
    }
}
