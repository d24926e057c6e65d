import QtQml

QtObject {
    enum Strength { VeryWeak, Weak, Less, Normal, Strong }
}
