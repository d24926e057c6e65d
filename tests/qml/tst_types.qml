import QtQuick
import QtTest

// What documents import: each native type in its module at version 1.0, and the sentence of those that only the program
// makes.
TestCase {
    id: _test

    name: "Types"

    function test_types_data(): var {
        const own = name => ({ tag: name, module: name });
        const of = (module, name) => ({ tag: name, module });
        const refused = (name, message = `Cannot create ${name} from QML`) => ({ tag: name, module: name, message });
        return [
            own("TControls"), own("TPresetsManager"), own("ImageDataUtils"), own("PropertyLinker"),
            own("PropertyTracker"), own("MouseListener"), own("TabletListener"), own("TImageUtils"),
            of("TImageIO", "TImageReader"), of("TImageIO", "TImageWriter"), of("TImageIO", "TThumbnailWriter"),
            of("TImageProcessor", "TEngineController"), of("TImageProcessor", "TSelectionPreview"),
            of("TNetwork", "TEventTracker"), of("TQmlUtils", "OSUtils"), of("QWindowKit", "WindowAgent"),
            refused("AppContext"), refused("AppState"), refused("TIntegrations"),
            refused("TImageSettings", "Cannot create TImageSettings"), refused("TIntercom"), refused("TFormat"),
            refused("TMathUtils"), refused("TFilterGenerator"), refused("WindowsThemeListener")
        ];
    }

    function test_types(data: var): void {
        let said = "";
        try {
            const object = Qt.createQmlObject(`import ${data.module} 1.0\n${data.tag} {}`, _test);
            object.destroy();
        } catch (error) {
            said = error.qmlErrors[0].message;
        }
        compare(said, data.message ?? "");
    }
}
