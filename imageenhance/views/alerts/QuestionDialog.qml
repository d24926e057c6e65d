import PebbleUI
import imageenhance

// A question with two answers: accepted() by its second button, rejected() by anything else.
QueuedDialog {
    id: _top

    required property string confirmText
    // Return presses a primary button. With a destructive one it cancels.
    property int confirmType: PbButton.Type.Primary

    height: implicitHeight
    buttons: [
        {
            type: PbButton.Type.Secondary,
            text: qsTr("Cancel"),
            onClicked: () => _top.answer(false)
        },
        {
            type: _top.confirmType,
            text: _top.confirmText,
            onClicked: () => _top.answer(true)
        }
    ]
}
