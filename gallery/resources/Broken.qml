import QtQuick 2.15
import Missing.Module 1.0

// The module above is not there: the dialog is not shown, and exec() returns 0 at once.
// Take the line out and open it again.
Rectangle {
    width: 240
    height: 120
    radius: 12
    color: "#2a6fd0"

    Text {
        anchors.centerIn: parent
        text: qsTr("Now it loads. Click to close.")
        color: "white"
    }
    MouseArea {
        anchors.fill: parent
        onClicked: callback.accept()
    }
}
