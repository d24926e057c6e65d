import QtQml

// Takes the mnemonic marks out of a menu text: "&File" reads "File", and "&&" one ampersand.
QtObject {
    function plain(text: string): string {
        return text.replace(/&(.?)/g, "$1");
    }

    // For a text from outside, a file name say, that is to be read as it stands.
    function escaped(text: string): string {
        return text.replace(/&/g, "&&");
    }
}
