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
    readonly property bool _lit: hovered || down

    // The ring that shows where the keyboard is.
    function focusRing(): PbFocusRing {
        return PbFocusRings.of(_top, background, PebbleStyle.size.mediumRadius);
    }

    // One of the style's colours, by the button's state.
    function _shade(colors: PbStateColors): color {
        return PbButtonStyles.shade(colors, enabled, _lit, selected);
    }

    padding: _small ? PebbleStyle.size.buttonPaddingCompact : PebbleStyle.size.buttonPadding
    topPadding: 0
    bottomPadding: 0
    implicitHeight: _small ? PebbleStyle.size.buttonHeightCompact : PebbleStyle.size.buttonHeight
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    focusPolicy: Qt.TabFocus
    hoverEnabled: true

    Accessible.role: Accessible.Button
    Accessible.name: text !== "" ? text : _tip.text
    Accessible.description: _tip.text
    Accessible.checked: selected
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    onVisualFocusChanged: focusRing()

    background: PbBox {
        radius: PebbleStyle.size.mediumRadius
        color: _top._shade(_top.style.background)
    }

    contentItem: Item {
        id: _content

        readonly property bool _hasIcon: _top.iconSource.toString() !== ""
        readonly property bool _hasText: _label.text !== ""
        readonly property real _iconSpace: _hasIcon ? _icon.width + (_hasText ? _top.contentSpacing : 0) : 0
        readonly property real _room: Math.max(0, width - _iconSpace)
        // A text is laid out anew whenever its width is set: it keeps its own until the button is too narrow.
        readonly property bool _fills: width > 0 && (_top.fillWidth || _label.implicitWidth > _room)
        readonly property real _textSpace: _fills ? _room : _label.implicitWidth
        readonly property bool _mirrored: _top.layoutDirection === Qt.RightToLeft
        readonly property real _start: {
            const rest = width - _iconSpace - (_hasText ? _textSpace : 0);
            return _top.alignCenter ? Math.round(rest / 2) : _mirrored ? rest : 0;
        }

        implicitWidth: _iconSpace + (_hasText ? _label.implicitWidth : 0)
        implicitHeight: Math.max(_hasIcon ? _icon.height : 0, _hasText ? _label.implicitHeight : 0)

        PbIcon {
            id: _icon
            x: _content._start + (_content._mirrored && _content._hasText ? _content._textSpace + _top.contentSpacing : 0)
            anchors.verticalCenter: parent.verticalCenter
            iconSource: _top.iconSource
            iconWidth: _top.iconWidth
            iconHeight: _top.iconHeight
            color: _top._shade(_top.style.icon)
        }

        PbText {
            id: _label
            x: _content._start + (_content._mirrored ? 0 : _content._iconSpace)
            anchors.verticalCenter: parent.verticalCenter
            width: _content._fills ? _content._room : implicitWidth
            text: _top.showText ? _top.text : ""
            type: _top._small ? PbLabel.Type.Title : PbLabel.Type.CTA
            color: _top._shade(_top.style.label)
            horizontalAlignment: _top.alignCenter ? Text.AlignHCenter : Text.AlignLeft
        }
    }

    PbHoverTip {
        id: _tip
    }
}
