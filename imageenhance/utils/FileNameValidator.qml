import QtQuick

// Keeps out what a file system refuses, and brackets, which could become markup where a name is shown.
RegularExpressionValidator {
    required property bool isMac

    regularExpression: isMac ? /[^\\/:<>?]*/ : /[^\\/:*"<>|?]*/
}
