import QtQml

// A side of a picture, or a factor.
TLabelledTextField {
    id: _top

    enum Type { Width, Height, Scale }

    property int type: TScaleTextField.Type.Width

    label: type === TScaleTextField.Type.Width ? "W" : type === TScaleTextField.Type.Height ? "H" : ""
    unit: type === TScaleTextField.Type.Scale ? "X" : "PX"
    decimals: type === TScaleTextField.Type.Scale ? 3 : 0
    accessibleName: type === TScaleTextField.Type.Width ? qsTr("Width") : type === TScaleTextField.Type.Height ? qsTr("Height") : qsTr("Scale")
}
