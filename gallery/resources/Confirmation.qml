import QtQuick 2.15
import UiComponents 0.1

// What surrounds the paper is transparent: a QML dialog has no background of its own.
Item {
    width: 420
    height: paper.height + 24

    // Escape rejects, as in every dialog. Enter goes to the button that has the keyboard.
    Rectangle {
        id: paper
        x: 12
        y: 12
        width: parent.width - 24
        height: content.height + 48
        radius: 3 * SheetColors.radius
        color: SheetColors.popup
        border.color: SheetColors.border

        Column {
            id: content
            x: 24
            y: 24
            width: parent.width - 48
            spacing: 12

            Text {
                width: parent.width
                text: qsTr("Discard the sequence?")
                font.pixelSize: 18
                font.bold: true
                wrapMode: Text.Wrap
                color: SheetColors.textStrong
            }
            Text {
                width: parent.width
                text: qsTr("Its cuts and titles will be gone. The clips stay in the project.")
                font.pixelSize: 13
                wrapMode: Text.Wrap
                color: SheetColors.text
            }
            Row {
                anchors.right: parent.right
                spacing: SheetColors.spacing

                SceneButton {
                    text: qsTr("Keep")
                    focus: true
                    onClicked: callback.reject()
                }
                SceneButton {
                    text: qsTr("Discard")
                    isMain: true
                    onClicked: callback.accept()
                }
            }
        }
    }
}
