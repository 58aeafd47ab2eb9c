import QtQuick 2.15
import UiComponents 0.1

Rectangle {
    width: 320; height: 110; radius: 2 * SheetColors.radius
    color: SheetColors.popup; border.color: SheetColors.border

    Text {
        x: 20; y: 16
        color: SheetColors.text
        text: callback.caption
    }
    Rectangle {
        x: 20; y: 48; width: parent.width - 40; height: 36; radius: SheetColors.radius
        color: SheetColors.field

        TextInput {
            anchors { fill: parent; margins: 9 }
            focus: true; clip: true
            color: SheetColors.text
            onTextChanged: callback.text = text
            onAccepted: callback.accept()
        }
    }
}
