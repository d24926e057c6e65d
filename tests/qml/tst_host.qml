import QtQuick
import QtTest
import imageenhance

TestCase {
    id: _case

    name: "HostConnection"

    property var log: []

    QtObject {
        id: fakeIntegrations
        readonly property string mergableInstanceKey: "standalone"
        property string currentImage: "/a.jpg"
        property string loadingError: ""
        signal pluginImagesAdded(ids: var, mergingInstance: bool)
        signal invalidImages(images: var)
        signal trackEvent(identifier: string, params: var)
        signal isPluginModeChanged(isPluginMode: bool)
    }
    QtObject {
        id: fakeIntercom
        property bool isServer: false
        function setExternalEditor(key: string): void {
            _case.log.push(key);
        }
    }
    QtObject {
        id: fakeControls
        function loadImages(ids: var, dontSwitchImages: bool): void {
            _case.log.push([ids[0], dontSwitchImages]);
        }
    }
    Component {
        id: hosts
        HostConnection {
            integrations: fakeIntegrations
            intercom: fakeIntercom
            controls: fakeControls
            onLoadingFailed: (path, error) => _case.log.push([path, error])
            onTrack: (name, properties) => _case.log.push([name, properties.a])
        }
    }

    function init(): void {
        fakeIntercom.isServer = false;
        fakeIntegrations.loadingError = "";
        log = [];
    }

    function test_burst_of_instances_does_not_move_the_view(): void {
        const host = createTemporaryObject(hosts, this);
        fakeIntegrations.pluginImagesAdded(["/a.jpg"], false);
        fakeIntegrations.pluginImagesAdded(["/b.jpg"], true);
        compare(log, [["/a.jpg", false], ["/b.jpg", true]]);
        tryVerify(() => !host.merging, 60000);
        fakeIntegrations.pluginImagesAdded(["/c.jpg"], true);
        compare(log[2], ["/c.jpg", false], "the first after a pause is shown");
    }

    function test_words_of_others(): void {
        createTemporaryObject(hosts, this);
        fakeIntercom.isServer = true;
        compare(log, ["standalone"], "an instance that took over takes merges");
        fakeIntercom.isServer = false;
        fakeIntegrations.loadingError = "The host has gone.";
        fakeIntegrations.loadingError = "";
        fakeIntegrations.trackEvent("used", { a: 1 });
        compare(log.slice(1), [["/a.jpg", "The host has gone."], ["used", 1]]);
    }
}
