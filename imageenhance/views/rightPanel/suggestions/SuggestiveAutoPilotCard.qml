import QtQuick
import PebbleUI
import imageenhance

// The card at the foot of the column that proposes the next filters. May be folded to a button, and is a square with
// their number while the panel is collapsed.
Rectangle {
    id: _top

    required property SuggestionList suggestions
    required property bool collapsed // the panel

    property bool minimized: false

    signal saveAsPreset
    signal applyAutopilot
    signal expandPanel
    signal hoverSubject(show: bool, subject: string)

    readonly property int _headerHeight: _state.filled ? 56 : 34
    readonly property int _footerHeight: 56

    width: collapsed ? 48 : 272
    height: collapsed ? 48 : minimized ? 36 : _state.filled ? _headerHeight + _footerHeight + 46 * _state.places : 90
    color: PebbleStyle.color.panelBkg
    Accessible.role: Accessible.Grouping
    Accessible.name: _header.text.replace("\n", "")
    Keys.onUpPressed: event => event.accepted = _cursor.step(-1)
    Keys.onDownPressed: event => event.accepted = _cursor.step(1)

    Rectangle {
        width: parent.width
        height: PebbleStyle.size.border
        color: PebbleStyle.color.darkGray
    }

    PbButton {
        id: _count

        visible: _top.collapsed
        anchors.fill: parent
        text: String(_top.suggestions.suggestionModel.count)
        tooltip.text: qsTr("%1 new suggestions").arg(text)
        tooltip.alignment: PbTooltipPlane.Alignment.Left
        tooltip.hugContents: true
        Accessible.name: tooltip.text
        style: PbButtonStyle {
            background: PbButtonStyles.tertiary.background
            label: PbStateColors {
                normal: PebbleStyle.color.primeGreen
                hovered: PebbleStyle.color.primeGreen
            }
        }
        onClicked: _top.expandPanel()
    }

    SuggestionsFolded {
        id: _folded
        visible: !_top.collapsed && _top.minimized
        anchors { fill: parent; margins: PebbleStyle.size.spacingSmall }
        canSavePreset: _top.suggestions.canSavePreset
        onShowSuggestions: {
            const focused = _folded.entry.activeFocus;
            _top.minimized = false;
            if (focused)
                _cursor.go(_cursor.stop);
        }
        onSaveAsPreset: _top.saveAsPreset()
    }

    Item {
        id: _open

        visible: !_top.collapsed && !_top.minimized
        anchors { fill: parent; leftMargin: PebbleStyle.size.spacing; rightMargin: PebbleStyle.size.spacing }

        PbIcon {
            id: _sign
            anchors.verticalCenter: _header.verticalCenter
            iconSource: PebbleStyle.icon.autopilot
            color: PebbleStyle.color.primeGreen
        }
        PbLabel {
            id: _header
            anchors { left: _sign.right; right: _close.left; leftMargin: PebbleStyle.size.spacing }
            height: _top._headerHeight
            text: !_state.filled && !_top.suggestions.autopilotRunning ? qsTr("No more suggestions for this image")
                : _top.suggestions.firstSuggestions ? qsTr("Here are some suggestions to get \nyou started...")
                                                    : qsTr("Here are a few more ideas for your \nimage...")
        }
        PbButton {
            id: _close
            anchors { right: parent.right; verticalCenter: _header.verticalCenter }
            height: 24
            width: 24
            padding: 0
            type: PbButton.Type.Tertiary
            compact: true
            iconSource: PebbleStyle.icon.close
            Accessible.name: qsTr("Hide suggestions")
            focusPolicy: _cursor.focusPolicy(_close)
            onClicked: {
                const focused = _close.activeFocus;
                _top.minimized = true;
                if (focused)
                    _folded.entry.forceActiveFocus(Qt.TabFocusReason);
            }
        }
        SuggestionRows {
            id: _rows
            anchors { left: parent.left; right: parent.right; top: _header.bottom; bottom: _footer.top }
            suggestions: _top.suggestions
            cursor: _cursor
            onHoverSubject: (show, subject) => _top.hoverSubject(show, subject)
        }
        SuggestionFooter {
            id: _footer
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            bottomPadding: _footer.hasButton ? PebbleStyle.size.spacing : PebbleStyle.size.spacingLarge
            suggestions: _top.suggestions
            cursor: _cursor
            onSaveAsPreset: _top.saveAsPreset()
            onApplyAutopilot: _top.applyAutopilot()
        }
    }

    SuggestionCursor {
        id: _cursor
        before: [_close]
        rows: _rows
        after: _footer.stops
    }

    QtObject {
        id: _state

        // The one that is looked for has the place of the one that was taken.
        readonly property int places: _top.suggestions.suggestionModel.count + (_top.suggestions.showAnalysisLoader ? 1 : 0)
        readonly property bool filled: places > 0
    }
}
