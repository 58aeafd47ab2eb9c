import QtQuick 2.15

Rectangle {
    width: 320; height: 110; radius: 8
    color: "#2b2b2b"; border.color: "#4b4b4b"

    Text {
        x: 20; y: 16
        color: "#f4f4f4"
        text: callback.caption
    }
    Rectangle {
        x: 20; y: 48; width: parent.width - 40; height: 36; radius: 4
        color: "#1a1a1a"

        TextInput {
            anchors { fill: parent; margins: 9 }
            focus: true; clip: true
            color: "#f4f4f4"
            onTextChanged: callback.text = text
            onAccepted: callback.accept()
        }
    }
}
