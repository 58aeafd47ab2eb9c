import QtQuick 2.15
import UiComponents 0.1

Rectangle {
    id: button

    property string text
    property bool isMain: false
    signal clicked()

    implicitWidth: Math.max(88, label.implicitWidth + 32)
    implicitHeight: 32
    radius: SheetColors.radius
    activeFocusOnTab: true
    color: isMain ? (mouse.pressed ? SheetColors.accentPressed : SheetColors.accent)
                  : (mouse.pressed ? SheetColors.buttonPressed : SheetColors.button)
    border.width: activeFocus ? 2 : 1
    border.color: activeFocus ? SheetColors.focus : isMain ? color : SheetColors.border

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
        color: button.isMain ? SheetColors.accentText : SheetColors.text
    }
    MouseArea {
        id: mouse
        anchors.fill: parent
        onClicked: button.clicked()
    }
}
