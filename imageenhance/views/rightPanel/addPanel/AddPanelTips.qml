import QtQuick
import PebbleUI
import imageenhance

// The tooltips of the add panel's entries as rich text, and which entries can be chosen. Knows no screen.
QtObject {
    id: _top

    required property var names // CategoryNames
    required property int faceCount // -1: not looked for
    required property bool stackHasEnhance
    required property int noiseLevel // Autopilot::Level
    required property int blurLevel
    required property bool resizingSupported
    required property bool psFilter // started as a filter by a host that can't take another size from one

    function isAvailable(row: var): bool {
        if (row.kind !== AddPanelTable.Kind.Filter)
            return true;
        if (row.name === names.faceRecovery)
            return faceCount > 0;
        return row.name !== names.enhance || !stackHasEnhance;
    }

    function text(row: var): string {
        switch (row.kind) {
        case AddPanelTable.Kind.Preset:
            return qsTr("<b>%1</b> is a custom preset.").arg(PebbleStyle.escaped(row.name));
        case AddPanelTable.Kind.Autopilot:
            return qsTr("<b>Autopilot</b> will analyze your image and apply enhancements that bring out the <b>best quality</b> in your image.");
        default:
            return _ofFilters[row.name] ?? "";
        }
    }

    // What a screen reader says of an entry, as plain text.
    function description(row: var): string {
        const rich = row.kind === AddPanelTable.Kind.Filter && row.name === names.enhance ? _upscaleNow : text(row);
        return rich.replace(/(<br\/?>)+/g, " ").replace(/<[^>]*>/g, "");
    }

    readonly property var _ofFilters: ({
            [names.denoise]: _denoise,
            [names.sharpen]: _sharpen,
            [names.exposure]: qsTr("<b>Adjust lighting</b> analyzes the image for poor lighting, then changes brightness and contrast to create a vivid image. The default is 25."),
            [names.whiteBalance]: qsTr("<b>Balance color</b> neutralizes color cast, creating an image with natural colors."),
            [names.faceRecovery]: _face,
            [names.textRecovery]: qsTr("<b>Preserve text</b> improves texts and retains them from getting distorted by other filters.<br/><br/><b>Tip</b>: Pair with <b>Upscaling</b> for the best result."),
            [names.enhance]: _private.shownOfUpscale,
            [names.inpaint]: qsTr("<b>Remove</b> uses generative AI to make objects disappear. It fills the selected area with a <b>context-aware patch</b> created to match the rest of the image.<br/><br/><b>Use small masks</b> to remove medium-large objects in steps for the highest quality output. Large masks can produce a low quality output.")
        })

    readonly property string _denoise: {
        const level = [qsTr("Low"), qsTr("Medium"), qsTr("High"), qsTr("Severe")][noiseLevel - 1];
        const found = level ? qsTr("Autopilot detected <b>%1</b> noise in this image.<br/><br/>").arg(level) : "";
        return qsTr("<b>Denoise</b> detects grainy noise artifacts and removes them, revealing a crisp image with clear details. Slightly sharpens the image, improving overall visual quality.<br><br>") + found + qsTr("<b>Tip</b>: Directly import your RAW files to access Denoise models that offer even better results.");
    }
    readonly property string _sharpen: {
        const level = [qsTr("Low"), qsTr("Medium"), qsTr("High")][blurLevel - 1];
        const found = level ? qsTr("Autopilot detected <b>%1</b> blur in this image.<br/><br/>").arg(level) : "";
        return qsTr("<b>Sharpen</b> increases detail by fixing blurry or soft details in the image.<br/><br/>") + found + qsTr("<b>Tip</b>: Use the subject mask to sharpen only the subject. Toggle 'Subject Only' off to sharpen the entire image.");
    }
    readonly property string _face: {
        const usual = qsTr("<b>Face recovery</b> dramatically improves low-medium quality faces.<br><br><b>Tip</b>: Pair with <b>Upscaling</b> for the best result.");
        if (faceCount > 0)
            return usual;
        const why = faceCount === 0 ? qsTr("<b>Face recovery</b> is disabled because no faces were detected in the image.</b>") : qsTr("<b>Face recovery</b> is disabled because current preferences do not allow for face detection. Enable <b>Default face detection</b> in Autopilot preferences to enable Face recovery.");
        return why + "<br><br>" + PebbleStyle.richTextColor(usual.replace(/<\/?b>/g, ""), PebbleStyle.color.lightGray);
    }

    readonly property bool _resizes: !stackHasEnhance && resizingSupported
    readonly property string _upscaleNow: {
        if (_resizes)
            return qsTr("<b>Upscale</b> intelligently generates new pixels when changing the image size - removing minor noise, blur, and compression artifcats in the process.<br/><br/>Images can be resized <b>0.2-6x</b>, with a maximum length of <b>32,000 pixels</b> on each side.");
        if (stackHasEnhance)
            return qsTr("<b>Upscale</b> has already been added to this image.</b>");
        if (psFilter)
            return qsTr("<b>Upscale</b> cannot change the image size when using the filter plugin. Launch Orvane Studio in Photoshop by using File > Automate in order to upscale the image.");
        return qsTr("<b>Upscale</b> cannot change the image size in this mode.");
    }
    on_UpscaleNowChanged: _private.showUpscale()
    Component.onCompleted: _private.showUpscale()

    readonly property QtObject _private: QtObject {
        id: _private

        // The tooltip tells what upscaling does and is not exchanged for why it can't be had: it keeps its text.
        property string shownOfUpscale: ""

        function showUpscale(): void {
            if (_top._resizes)
                shownOfUpscale = _top._upscaleNow;
        }
    }
}
