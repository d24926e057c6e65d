import PebbleUI

// What can be done to a preset besides applying it.
PbMenu {
    id: _top

    property string preset: "" // the one that it was opened on

    signal rename(string name)
    signal remove(string name)

    title: preset

    PbMenuItem {
        text: qsTr("Rename preset")
        iconSource: PebbleStyle.icon.pencil
        onTriggered: _top.rename(_top.preset)
    }
    PbMenuItem {
        text: qsTr("Delete preset")
        iconSource: PebbleStyle.icon.trash
        onTriggered: _top.remove(_top.preset)
    }
}
