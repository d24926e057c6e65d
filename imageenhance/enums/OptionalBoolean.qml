import QtQml

QtObject {
    enum OptionalBoolean { Unset = -1, False, True }
}
