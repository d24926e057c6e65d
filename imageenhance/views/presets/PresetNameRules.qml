import QtQml

// Which names a preset may get, without a screen. Presets are files, and not every disk tells upper case from lower.
QtObject {
    id: _top

    required property var taken // names of all presets
    required property string ownName // of the preset that is renamed; empty for a new one

    function isFree(name: string): bool {
        if (name === ownName)
            return true;
        const lower = name.toLowerCase();
        return !Array.from(taken).some(other => other.toLowerCase() === lower);
    }
}
