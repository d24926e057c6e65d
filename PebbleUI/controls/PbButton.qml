import QtQuick
import QtQuick.Templates as T
import PebbleUI

// A button with an icon, a text, or both. Space, Return and Enter press it. A click leaves the keyboard
// where it was, so that a program's shortcuts go on working; Tab reaches it.
T.AbstractButton {
    id: _top

    enum Type { Primary, Secondary, Tertiary, Duotone, Warning, Destructive }
    enum Size { Default, Compact }

    property int type: PbButton.Type.Primary
    property bool compact: false
    property int size: compact ? PbButton.Size.Compact : PbButton.Size.Default

    property url iconSource
    property real iconSize: PebbleStyle.size.icon
    property real iconWidth: iconSize
    property real iconHeight: iconSize

    property bool showText: true
    property bool alignCenter: true
    property real contentSpacing: PebbleStyle.size.spacing
    property int layoutDirection: Qt.LeftToRight
    property bool selected: false

    // The content takes the whole width: icon at one end, text over the rest.
    property bool fillWidth: false
    property PbButtonStyle style: PbButtonStyles.byType[type] ?? PbButtonStyles.primary
    property alias tooltip: _tip

    readonly property bool _small: size === PbButton.Size.Compact

    padding: _small ? PebbleStyle.size.buttonPaddingCompact : PebbleStyle.size.buttonPadding
    topPadding: 0
    bottomPadding: 0
    implicitHeight: _small ? PebbleStyle.size.buttonHeightCompact : PebbleStyle.size.buttonHeight
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    focusPolicy: Qt.TabFocus
    hoverEnabled: true

    Accessible.role: Accessible.Button
    Accessible.name: text !== "" ? text : tooltip.text
    Accessible.description: tooltip.text
    Accessible.checked: selected
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    background: Rectangle {
        radius: PebbleStyle.size.mediumRadius
        color: _top.style.background.pick(_top.enabled, _top.hovered || _top.down, _top.selected)

        PbFocusRing {
            target: _top
            targetRadius: PebbleStyle.size.mediumRadius
        }
    }

    contentItem: PbButtonContent {
        iconSource: _top.iconSource
        iconWidth: _top.iconWidth
        iconHeight: _top.iconHeight
        iconColor: _top.style.icon.pick(_top.enabled, _top.hovered || _top.down, _top.selected)
        text: _top.showText ? _top.text : ""
        textColor: _top.style.label.pick(_top.enabled, _top.hovered || _top.down, _top.selected)
        textType: _top._small ? PbLabel.Type.Title : PbLabel.Type.CTA
        spacing: _top.contentSpacing
        layoutDirection: _top.layoutDirection
        center: _top.alignCenter
        fill: _top.fillWidth
    }

    PbHoverTip {
        id: _tip
    }
}
