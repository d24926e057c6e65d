pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QWindowKit
import TControls
import TImageIO
import TPresetsManager
import PebbleUI
import imageenhance

// The window: a table of contents. Makes the long-lived objects and joins them; what each does stands in a document
// of its own name. The objects that the entry provides are read here alone.
ApplicationWindow {
    id: appWindow

    // qmllint disable unqualified
    readonly property var context: appContext
    readonly property var session: appState
    readonly property var host: tIntegrations
    readonly property var systemTheme: themeListener
    // qmllint enable unqualified

    minimumWidth: 1280
    minimumHeight: 720
    width: 1440
    height: 900
    title: windowState.windowTitle
    color: PebbleStyle.color.pageBkg
    onClosing: close => close.accepted = dialogs.closing.quit.mayClose()
    onActiveChanged: keyState.reset()
    onVisibilityChanged: visibility => {
        place.visibilityChanged(visibility);
        globalFocus.forceActiveFocus();
    }
    Component.onCompleted: {
        helpers.listen();
        PebbleStyle.tooltipPlane = tooltipPlane;
        startUp.run();
    }

    // The model, and what answers for pixels and files
    MainSettings { id: mainSettings }
    BaseTheme { id: baseTheme; isWindows: appWindow.context.isWindows }
    Helpers { id: helpers; appContext: appWindow.context; appWindow: appWindow; settings: mainSettings }
    TControls {
        id: controlState
        modelParamInfo: imageProcessor.modelParamInfo
        defaultSubjectType: mainSettings.autopilotSubjectType
    }
    TPresetsManager { id: presetsManager; presetsDirectory: appWindow.context.presetsDirectory }
    TImageReader { id: imageReader; applyLensCorrection: mainSettings.lensCorrectionEnabled }
    TImageWriter { id: imageWriter }
    ImageProcessor {
        id: imageProcessor
        settings: mainSettings
        integrations: appWindow.host
        imageDataUtils: helpers.imageDataUtils
        strokes: controlState.currentInpaintStrokes
        modelDirectory: appWindow.context.modelDirectory
        inputImage: windowState.imageData
        params: controlState.currentControls
        exporting: windowState.isExporting
    }

    // State, and the flows without a screen
    WindowState { id: windowState; helpers: helpers; controls: controlState; reader: imageReader; integrations: appWindow.host; editMode: rightPanel.editMode }
    ImageRoad {
        helpers: helpers
        controls: controlState
        engine: imageProcessor
        reader: imageReader
        preview: previewPanel
        panel: rightPanel
        state: windowState
        settings: mainSettings
        onLoadingFailed: (path, error) => dialogs.notices.cannotRead(path, error)
    }
    OpenedImages {
        id: openedImages
        controls: controlState
        appState: appWindow.session
        osUtils: helpers.osUtils
        settings: mainSettings
        pluginMode: windowState.pluginMode
        onOpened: dialogs.closing.quit.imagesOpened()
        onLastClosedByHost: appWindow.close()
    }
    HostConnection { integrations: appWindow.host; controls: controlState; onCloseRefineMode: rightPanel.closeRefineMode(); onInvalidImages: dialogs.notices.invalidImages() }
    KeyState { id: keyState; osUtils: helpers.osUtils }
    AppCommands {
        id: appMenuHandler
        controls: controlState
        panel: rightPanel
        closing: dialogs.closing
        osUtils: helpers.osUtils
        appContext: appWindow.context
        onOpenFileDialog: dialogs.openImageDialog.open()
        onCloseWindow: appWindow.close()
    }

    // The start
    WindowAgent { id: windowAgent }
    WindowPlace { id: place; appWindow: appWindow; appContext: appWindow.context; osUtils: helpers.osUtils; settings: mainSettings }
    StartUp {
        id: startUp
        appWindow: appWindow
        appContext: appWindow.context
        osUtils: helpers.osUtils
        integrations: appWindow.host
        windowAgent: windowAgent
        titleBar: titleBar
        themeListener: appWindow.systemTheme
        settings: mainSettings
        place: place
        recentFiles: openedImages.recentFiles
        onShown: helpers.startEvent.start()
    }

    // What is seen
    WinTitleBar {
        id: titleBar
        anchors { left: parent.left; right: parent.right }
        window: appWindow
        windowState: windowState
        settings: mainSettings
        appVersion: appWindow.context.appVersion
    }
    WorkArea {
        anchors { left: parent.left; right: parent.right; top: titleBar.bottom; bottom: parent.bottom }
        preview: previewPanel
        panel: rightPanel
        windowState: windowState
        imageUtils: helpers.imageUtils
        recentFiles: openedImages.recentFiles
        commands: appMenuHandler
        theme: baseTheme
        onBrowseImages: dialogs.openImageDialog.show()
    }
    RightPanel { id: rightPanel; controls: controlState; settings: mainSettings; navigator: previewPanel.navigator; imageOpen: windowState.imageOpen }
    ImagePreview {
        id: previewPanel
        helpers: helpers
        engine: imageProcessor
        controls: controlState
        windowState: windowState
        settings: mainSettings
        panKeyHeld: keyState.panKeyHeld
        originalKeyHeld: keyState.spaceHeld || keyState.slashHeld
        navigatorWidth: rightPanel.navigatorWidth
        onOpenImageDialog: dialogs.openImageDialog.open()
        onFocusWanted: globalFocus.forceActiveFocus()
    }
    FocusScope {
        id: globalFocus
        focus: true
        Keys.onPressed: event => event.accepted = keyState.pressed(event.key, event.modifiers)
        Keys.onReleased: event => event.accepted = keyState.released(event.key, event.modifiers)
    }
    AppShortcuts { commands: appMenuHandler; preview: previewPanel; windowState: windowState; active: !dialogs.anyOpen }
    WindowDialogs {
        id: dialogs
        anchors.fill: parent
        commands: appMenuHandler
        helpers: helpers
        controls: controlState
        engine: imageProcessor
        panel: rightPanel
        settings: mainSettings
        imageOpen: windowState.imageOpen
        developerMode: appWindow.context.isDev
        onCloseWindow: appWindow.close()
        onDone: globalFocus.forceActiveFocus()
    }
    PbTooltipPlane { id: tooltipPlane; anchors.fill: parent; z: 100 }
}
