import QtQml

// What is being edited on the picture: one mode for the whole window.
QtObject {
    enum Mode { None, Crop, Subject, Faces, Text, Inpaint }
}
