pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import AppContext
import AppState
import TControls
import TFilterGenerator
import TImageIO
import TIntegrations
import TIntercom
import TPresetsManager
import WindowsThemeListener
import PebbleUI
import imageenhance

// The window: a table of contents. Makes the long-lived objects and joins them; what each does is in a document
// of its own name. The objects that the entry point provides are read here alone.
ApplicationWindow {
    id: appWindow

    // qmllint disable unqualified
    readonly property AppContext context: appContext
    readonly property AppState session: appState
    readonly property TIntegrations host: tIntegrations
    readonly property TIntercom intercom: tIntercom
    readonly property WindowsThemeListener systemTheme: themeListener
    readonly property TFilterGenerator generator: filterGenerator
    // qmllint enable unqualified

    minimumWidth: Math.min(1280, Screen.desktopAvailableWidth)
    minimumHeight: Math.min(720, Screen.desktopAvailableHeight)
    width: Math.min(1440, Screen.desktopAvailableWidth)
    height: Math.min(900, Screen.desktopAvailableHeight)
    title: windowState.windowTitle
    color: PebbleStyle.color.pageBkg
    onClosing: close => close.accepted = dialogs.closing.quit.mayClose()
    onActiveChanged: keyState.reset()
    onVisibilityChanged: visibility => {
        windowStart.visibilityChanged(visibility);
        content.takeFocus();
    }
    Component.onCompleted: {
        helpers.listen();
        PebbleStyle.tooltipPlane = tooltipPlane;
        windowStart.run();
    }

    // The model, and what answers for pixels and files
    MainSettings { id: mainSettings }
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
        onLowSpaceWarning: (volume, critical) => dialogs.notices.lowSpace(volume, critical)
    }

    // State, and the flows without a screen
    WindowState { id: windowState; helpers: helpers; controls: controlState; reader: imageReader; integrations: appWindow.host; editMode: content.panel.editMode }
    ImagePipeline {
        engine: imageProcessor
        writer: imageWriter
        preview: content.preview
        panel: content.panel
        windowState: windowState
        settings: mainSettings
        onLoadingFailed: (path, error) => {
            openedImages.recentFiles.forget(path);
            dialogs.notices.cannotRead(path, error);
        }
    }
    OpenedImages {
        id: openedImages
        controls: controlState
        appState: appWindow.session
        osUtils: helpers.osUtils
        settings: mainSettings
        pluginMode: windowState.pluginMode
        onOpened: {
            dialogs.closing.quit.imagesOpened();
            Qt.callLater(helpers.imageOpened);
        }
        onLastClosedByHost: appWindow.close()
    }
    HostConnection {
        integrations: appWindow.host
        intercom: appWindow.intercom
        controls: controlState
        onCloseRefineMode: content.panel.closeRefineMode()
        onInvalidImages: images => dialogs.notices.invalidImages(images)
        onLoadingFailed: (path, error) => dialogs.notices.cannotRead(path, error)
        onTrack: (name, properties) => helpers.eventTracker.track(name, properties)
    }

    // Keys, commands and the start
    KeyState { id: keyState; osUtils: helpers.osUtils }
    AppCommands {
        id: appMenuHandler
        controls: controlState
        panel: content.panel
        closing: dialogs.closing
        helpers: helpers
        onOpenFileDialog: dialogs.openImageDialog.open()
        onCloseWindow: appWindow.close()
    }
    WindowStart {
        id: windowStart
        integrations: appWindow.host
        systemTheme: appWindow.systemTheme?.theme ?? "dark" // the listener goes before the window
        titleBar: content.titleBar
        helpers: helpers
        settings: mainSettings
        recentFiles: openedImages.recentFiles
    }

    // What is seen, and what opens over it
    WindowContent {
        id: content
        anchors.fill: parent
        window: appWindow
        appVersion: appWindow.context.appVersion
        windowState: windowState
        engine: imageProcessor
        settings: mainSettings
        keyState: keyState
        commands: appMenuHandler
        recentFiles: openedImages.recentFiles
        presets: presetsManager
        generator: appWindow.generator
        dialogOpen: dialogs.anyOpen
        onBrowseImages: dialogs.openImageDialog.show()
        onContextMenuRequested: at => dialogs.contextMenu.showAtPoint(at)
    }
    WindowDialogs {
        id: dialogs
        anchors.fill: parent
        commands: appMenuHandler
        windowState: windowState
        engine: imageProcessor
        panel: content.panel
        settings: mainSettings
        presets: presetsManager
        developerMode: appWindow.context.isDev
        workAreaTop: content.titleBar.height
        onCloseWindow: appWindow.close()
        onDone: content.takeFocus()
    }
    PbTooltipPlane { id: tooltipPlane; anchors.fill: parent; z: 100 }
}
