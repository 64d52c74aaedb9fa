import QtQml.Models 2.15
import QtQuick 2.15
import QtQuick.Controls 1.4
import QtQuick.Layouts 1.15

// `features` is the tree of a document, and `propertiesRole` the role that answers the properties of a feature as a
// model. The roles of columns are named as the models name them.
ApplicationWindow {
    visible: true
    width: 900
    height: 600

    SplitView {
        anchors.fill: parent

        TreeView {
            id: featureView
            objectName: "features"
            width: 500
            model: features
            selection: ItemSelectionModel { model: features }
            Component.onCompleted: expand(features.index(0, 0))
            TableViewColumn { role: "type"; title: "Type"; width: 200 }
            TableViewColumn { role: "name"; title: "Name"; width: 150 }
            TableViewColumn { role: "identifier"; title: "Identifier"; width: 120 }
        }
        TreeView {
            objectName: "properties"
            property var current: featureView.selection.currentIndex
            Layout.fillWidth: true
            model: current.valid ? features.data(current, propertiesRole) : null
            onModelChanged: Qt.callLater(expandGroups)
            function expandGroups() {
                for (var row = 0; model && row < model.rowCount(); ++row) {
                    expand(model.index(row, 0))
                }
            }
            TableViewColumn { role: "name"; title: "Property"; width: 200 }
            TableViewColumn { role: "value"; title: "Value"; width: 100 }
            TableViewColumn { role: "unit"; title: "Unit"; width: 60 }
        }
    }
}
