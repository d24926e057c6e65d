import QtQml
import TPresetsManager
import "../utils/presetReduction.mjs" as Reduction

// Reads a preset to be laid on an image or renamed. A file that is gone or damaged is reported and gives nothing.
QtObject {
    id: _top

    required property TPresetsManager presets

    signal warned(title: string, message: string)

    // The preset's map, or null.
    function read(name: string): var {
        const preset = presets.getPreset(name);
        if (Reduction.isSound(preset))
            return preset;
        warned(qsTr("Preset could not be read"), qsTr("The file of the preset %1 is missing or damaged. Nothing was changed.").arg(name));
        return null;
    }
}
