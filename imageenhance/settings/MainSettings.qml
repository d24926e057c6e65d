import QtQuick
import QtCore
import TImageSettings
import imageenhance
import "settingsRules.mjs" as Rules

// Every persistent setting with its default. A property changed anywhere is stored by this object itself; the
// batch program reads some of the same keys. No property of another kind may stand here: it would be stored, too.
Settings {
    id: _top

    // Once, when the stored values stand and before anything is done by them.
    function repair(): void {
        for (const correction of Rules.corrections(_top, key => _top.value(key, ""))) {
            if (correction.damaged)
                console.warn(`The setting ${correction.key} held no valid value; it has its default now.`);
            _top[correction.key] = correction.value;
        }
    }

    // Window
    property rect windowGeometry: Qt.rect(0, 0, 0, 0)
    property int windowVisibility: Window.Windowed
    property string lastAppVersion: ""
    property string colorScheme: "auto"
    property int preferencesTab: 0
    property var recentFiles: []
    property date snoozeUpdateDialogUntil: new Date(1970, 0, 1)
    property int lastViewMode: 1
    property real splitViewXPos: 0.5
    property point dragState: Qt.point(0, 0)
    property bool rightPanelCollapsed: false
    property bool updateZoomAfterUpscale: false
    property bool suggestionsAndMaskingCarousel: false
    property string lastShowedInpaintChangesWarning: ""
    property bool showInpaintMacWarning: true
    property string lastShowedInpaintCompileButton: ""
    property bool showHelpPrompts: true
    property bool promptRawLRC: true
    property int exportsCount: 0

    // Processing
    property int deviceId: -2
    property bool hotPixelCorrection: false
    property bool legacyModels: false
    property bool lensCorrectionEnabled: true
    property bool useAdobeDng: true
    property bool useNeuralEngine: true
    property bool checkDiskSpace: true
    property bool modelDownloads: true
    property bool srgbFallback: false
    property bool developerMode: false

    // Autopilot
    property bool autopilotRecommendFilters: false
    property string autopilotSubjectType: "Subject"
    property string autopilotFaceDetect: "auto"
    property var faceParts: ["hair", "necks"]
    property int autopilotFaceStrength: 80
    property string autopilotSharpeningModel: "Auto"
    property var autopilotSharpenBlurs: ["medium", "high"]
    property int autopilotSharpenStrength: SliderStrength.Normal
    property bool autopilotEnableDownscaling: false
    property string autopilotUpscalingModel: "Auto"
    property string autopilotUpscalingType: "auto"
    property real autopilotUpscalingFactor: 2
    property int autopilotUpscalingParam1Strength: SliderStrength.Normal
    property int autopilotUpscalingParam2Strength: SliderStrength.Normal
    property string autopilotOutputResolutionType: "original"
    property int autopilotResolutionUnit: TImageSettings.Pixels
    property real autopilotDefaultResolution: -1
    property string autopilotDenoisingModel: "Auto"
    property var autopilotDenoiseLevels: ["medium", "high", "severe"]
    property int autopilotDenoiseStrength: SliderStrength.Normal
    property string autopilotDenoisingRawModel: "Auto"
    property var autopilotDenoiseRawLevels: ["low", "medium", "high", "severe"]
    property var autopilotDenoiseRawStrength: SliderStrength.Normal
    property string autopilotConflictResolutionPref: "auto"
    property int autopilotNonRAWExposureStrength: 25
    property int autopilotRAWExposureStrength: 8
    property int autopilotTemperatureValue: 50
    property int autopilotOpacityValue: 100
    property string autopilotTextModel: "Auto"
    property int autopilotTextStrength: SliderStrength.Normal

    // Resolution and masks
    property int resolutionUnit: TImageSettings.Pixels
    property bool aiBrush: true
    property string subjectMaskBrush: "basic-add"
    property string inpaintMaskBrush: "basic-add"
    property string textMaskBrush: "basic-add"
    property color maskOverlayColor: "red"
    property double maskOverlayOpacity: 0.5

    // Export
    property bool autoCloseImages: false
    property string savePrefix: ""
    property string saveSuffix: "-orvane"
    property bool saveAppendFilters: true
    property bool saveAllowOverwrite: false
    property string saveFolderValue: "preserve"
    property string saveImageFormat: "preserve"
    property int saveJpegQuality: 95
    property int savePngCompression: 2
    property string savePngBitDepth: "16"
    property string saveTiffCompression: "zip"
    property string saveTiffBitDepth: "16"
    property string saveDngCompression: "1"
    property var outputFolderList: [
        {
            "text": qsTr("Original folder"),
            "value": "preserve"
        },
        {
            "text": qsTr("Browse..."),
            "value": "browse"
        }
    ]
    property int addToCollections: OptionalBoolean.Unset

    // Where results go: folders that are gone since are not offered.
    function dropVanishedFolders(exists: var): void {
        const kept = Array.from(outputFolderList).filter(entry => ["preserve", "browse"].includes(entry.value) || exists(entry.value));
        if (kept.length !== outputFolderList.length)
            outputFolderList = kept;
    }

    // Privacy
    property bool allowEventTracking: true
    property bool defaultCanUploadImages: false
}
