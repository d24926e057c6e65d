import QtQml
import PebbleUI

// The colours of one type of button.
QtObject {
    required property PbStateColors background
    required property PbStateColors label
    property PbStateColors icon: label
}
