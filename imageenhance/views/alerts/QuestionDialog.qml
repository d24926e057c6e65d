import PebbleUI
import imageenhance

// A question with two answers: accepted() by its second button, rejected() by anything else.
QueuedDialog {
    id: _top

    required property string confirmText

    height: implicitHeight
    buttons: [
        {
            type: PbButton.Type.Secondary,
            text: qsTr("Cancel"),
            onClicked: () => _top.answer(false)
        },
        {
            type: PbButton.Type.Primary,
            text: _top.confirmText,
            onClicked: () => _top.answer(true)
        }
    ]
}
