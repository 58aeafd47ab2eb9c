import QtQuick 2.15
import UiComponents 0.1

Item {
    id: form

    readonly property bool isComplete: title.text.trim() !== "" && rate.acceptableInput

    function submit() {
        if (isComplete) {
            callback.values = { title: title.text.trim(), rate: Number(rate.text) };
            callback.accept();
        }
    }

    width: 380
    height: content.height + 48

    Rectangle {
        anchors.fill: parent
        radius: 3 * SheetColors.radius
        color: SheetColors.popup
        border.color: SheetColors.border
    }

    component Field: TextInput {
        width: content.width
        padding: 7
        clip: true
        font.pixelSize: 13
        selectByMouse: true
        activeFocusOnTab: true
        color: SheetColors.text
        selectionColor: SheetColors.selection
        selectedTextColor: SheetColors.selectionText
        onAccepted: form.submit()

        Rectangle {
            anchors.fill: parent
            z: -1
            radius: SheetColors.radius
            color: SheetColors.field
            border.width: parent.activeFocus ? 2 : 1
            border.color: parent.activeFocus ? SheetColors.focus
                                             : parent.acceptableInput ? SheetColors.border
                                                                      : SheetColors.errorBorder
        }
    }

    component Caption: Text {
        font.pixelSize: 12
        color: SheetColors.textSecondary
    }

    Column {
        id: content
        x: 24
        y: 24
        width: parent.width - 48
        spacing: SheetColors.spacing

        Caption { text: qsTr("Title") }
        Field {
            id: title
            focus: true
            text: qsTr("Sequence 1")
        }
        Caption { text: qsTr("Frames a second, 1 to 240") }
        Field {
            id: rate
            text: "25"
            validator: IntValidator { bottom: 1; top: 240 }
        }
        Item { width: 1; height: 4 }
        Row {
            anchors.right: parent.right
            spacing: SheetColors.spacing

            SceneButton {
                text: qsTr("Cancel")
                onClicked: callback.reject()
            }
            SceneButton {
                text: qsTr("Create")
                isMain: true
                enabled: form.isComplete
                opacity: enabled ? 1 : 0.4
                onClicked: form.submit()
            }
        }
    }
}
