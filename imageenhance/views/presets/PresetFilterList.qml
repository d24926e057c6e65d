pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls.Fusion
import PebbleUI
import imageenhance
import "../../utils/presetReduction.mjs" as Reduction

// The filters of a preset, in their order, each with what it works on. A long list scrolls.
PbBox {
    id: _top

    required property FilterVocabulary vocabulary
    required property var filterOrder // names
    required property var controls // name -> filter

    readonly property int rowHeight: 42
    readonly property real rowsShown: 5.5
    readonly property bool _scrolls: _list.contentHeight > _list.height

    implicitHeight: rowHeight * Math.min(filterOrder.length, rowsShown)
    radius: PebbleStyle.size.smallRadius
    color: PebbleStyle.color.darkerGray

    ListView {
        id: _list

        anchors.fill: parent
        model: _top.filterOrder
        clip: _top._scrolls
        interactive: _top._scrolls
        activeFocusOnTab: _top._scrolls
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Filters of the preset")
        Keys.onUpPressed: contentY = Math.max(0, contentY - _top.rowHeight)
        Keys.onDownPressed: contentY = Math.min(contentHeight - height, contentY + _top.rowHeight)

        ScrollBar.vertical: PbScrollBar {}

        delegate: Item {
            id: _row

            required property string modelData
            readonly property string category: Reduction.categoryOf(modelData, _top.controls)
            readonly property string part: Reduction.partOf(category, _top.controls[modelData])

            width: _list.width
            height: _top.rowHeight
            Accessible.role: Accessible.ListItem
            Accessible.name: part === "" ? _label.text : `${_label.text}, ${part}`

            PbIcon {
                id: _icon
                anchors { left: parent.left; leftMargin: PebbleStyle.size.spacing; verticalCenter: parent.verticalCenter }
                iconSource: _top.vocabulary.icon(_row.category)
                color: PebbleStyle.color.textLight
            }
            Column {
                anchors { left: _icon.right; right: parent.right; margins: PebbleStyle.size.spacing; verticalCenter: parent.verticalCenter }

                PbText {
                    id: _label
                    width: parent.width
                    text: _top.vocabulary.label(_row.category)
                    type: PbLabel.Type.Title
                }
                PbText {
                    width: parent.width
                    visible: text !== ""
                    text: _row.part
                    type: PbLabel.Type.Label
                    color: PebbleStyle.color.textQuiet
                }
            }
        }
    }

    PbFocusRing {
        target: _list
        always: true
    }
}
