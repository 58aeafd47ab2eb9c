import QtQuick 2.15

Rectangle {
    id: button

    property string text
    property bool isMain: false
    signal clicked()

    implicitWidth: Math.max(88, label.implicitWidth + 32)
    implicitHeight: 32
    radius: 5
    activeFocusOnTab: true
    color: isMain ? (mouse.pressed ? "#225bab" : "#2a6fd0")
                  : callback.isDark ? (mouse.pressed ? "#2c2c2c" : "#464646")
                                    : (mouse.pressed ? "#cfcfcf" : "#e6e6e6")
    border.width: activeFocus ? 2 : 1
    border.color: activeFocus ? "#5a9cf5" : isMain ? color : callback.isDark ? "#5a5a5a" : "#b4b4b4"

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Text {
        id: label
        anchors.centerIn: parent
        text: button.text
        font.pixelSize: 13
        color: button.isMain || callback.isDark ? "white" : "#202020"
    }
    MouseArea {
        id: mouse
        anchors.fill: parent
        onClicked: button.clicked()
    }
}
