import QtQuick 2.15

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
        radius: 12
        color: callback.isDark ? "#2b2b2b" : "#ffffff"
        border.color: callback.isDark ? "#4b4b4b" : "#c4c4c4"
    }

    component Field: TextInput {
        width: content.width
        padding: 7
        clip: true
        font.pixelSize: 13
        selectByMouse: true
        activeFocusOnTab: true
        color: callback.isDark ? "#f4f4f4" : "#101010"
        selectionColor: "#28558f"
        onAccepted: form.submit()

        Rectangle {
            anchors.fill: parent
            z: -1
            radius: 4
            color: callback.isDark ? "#1a1a1a" : "#f6f6f6"
            border.width: parent.activeFocus ? 2 : 1
            border.color: parent.activeFocus ? "#5a9cf5"
                                             : !parent.acceptableInput ? "#e2574a"
                                                                       : callback.isDark ? "#4b4b4b" : "#b4b4b4"
        }
    }

    component Caption: Text {
        font.pixelSize: 12
        color: callback.isDark ? "#a8a8a8" : "#5a5a5a"
    }

    Column {
        id: content
        x: 24
        y: 24
        width: parent.width - 48
        spacing: 8

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
            spacing: 8

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
