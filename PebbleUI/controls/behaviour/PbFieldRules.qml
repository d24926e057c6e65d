import QtQml

// What a text field decides at its edges: what it goes back to when it is left, and which keys leave it.
QtObject {
    id: _top

    required property bool isNumber
    required property bool showError
    required property bool resetOnError

    // The text at the moment the field got the keyboard.
    property string oldText: ""

    function entered(text: string): void {
        oldText = text;
    }

    function textWhenLeft(text: string): string {
        return isNumber && resetOnError && showError ? oldText : text;
    }

    // Return stays in a field with an error, so that the error is seen; Enter and Escape always leave.
    function leaves(key: int): bool {
        return key === Qt.Key_Enter || key === Qt.Key_Escape || (key === Qt.Key_Return && !showError);
    }
}
