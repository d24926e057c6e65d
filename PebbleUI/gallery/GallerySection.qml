import QtQuick
import PebbleUI

// A titled group of cases.
Column {
    property alias title: _title.text

    spacing: PebbleStyle.size.spacing

    PbLabel {
        id: _title
        type: PbLabel.Type.Title
        color: PebbleStyle.color.title
        Accessible.role: Accessible.Heading
    }
}
