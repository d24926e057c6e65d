import QtQuick

// What the pointer asks for over a picture. Handed down to where it happens, heard where it is answered.
QtObject {
    signal wheelTurned(real delta) // in eighths of a degree
    signal rightClicked(point windowPoint)
    signal focusWanted
}
