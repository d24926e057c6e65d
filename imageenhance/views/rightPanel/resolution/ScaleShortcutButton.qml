import PebbleUI

// A small toggle that stands for one scale.
PbGridOption {
    padding: PebbleStyle.size.spacingSmall
    implicitHeight: PebbleStyle.size.fieldHeight
}
