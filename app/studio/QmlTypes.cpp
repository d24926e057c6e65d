#include "app/studio/QmlTypes.h"

#include "app/AppState.h"
#include "frontends/ImageDataUtils.h"
#include "frontends/TEngineController.h"
#include "frontends/TEventTracker.h"
#include "frontends/TImageReader.h"
#include "frontends/TImageUtils.h"
#include "frontends/TImageWriter.h"
#include "frontends/TThumbnailWriter.h"
#include "host/TIntegrations.h"
#include "items/MouseListener.h"
#include "items/PropertyLinker.h"
#include "items/TSelectionPreview.h"
#include "items/TabletListener.h"
#include "items/WindowAgent.h"
#include "model/TControls.h"
#include "model/TImageSettings.h"
#include "presets/TPresetsManager.h"
#include "system/AppContext.h"
#include "system/OSUtils.h"

#include <QtQml>

namespace {

/// A creatable type in a module of its own name.
template <typename T>
void creatable(const char *name) {
    qmlRegisterType<T>(name, 1, 0, name);
}

template <typename T>
void uncreatable(const char *name, const QString &message) {
    qmlRegisterUncreatableType<T>(name, 1, 0, name, message);
}

} // namespace

void registerQmlTypes() {
    uncreatable<AppContext>("AppContext", QStringLiteral("Cannot create AppContext from QML"));
    uncreatable<AppState>("AppState", QStringLiteral("Cannot create AppState from QML"));
    creatable<TControls>("TControls");
    creatable<TPresetsManager>("TPresetsManager");
    creatable<ImageDataUtils>("ImageDataUtils");
    creatable<PropertyLinker>("PropertyLinker");
    creatable<PropertyTracker>("PropertyTracker");
    creatable<MouseListener>("MouseListener");
    creatable<TabletListener>("TabletListener");
    // A value type with enumerations: its meta-object is what the documents read.
    qmlRegisterUncreatableMetaObject(TImageSettings::staticMetaObject, "TImageSettings", 1, 0,
                                     "TImageSettings", QStringLiteral("Cannot create TImageSettings"));
    uncreatable<TIntegrations>("TIntegrations", QStringLiteral("Cannot create TIntegrations from QML"));

    qmlRegisterType<TImageReader>("TImageIO", 1, 0, "TImageReader");
    qmlRegisterType<TImageWriter>("TImageIO", 1, 0, "TImageWriter");
    qmlRegisterType<TThumbnailWriter>("TImageIO", 1, 0, "TThumbnailWriter");
    qmlRegisterType<TEngineController>("TImageProcessor", 1, 0, "TEngineController");
    qmlRegisterType<TSelectionPreview>("TImageProcessor", 1, 0, "TSelectionPreview");
    qmlRegisterType<TImageUtils>("TImageUtils", 1, 0, "TImageUtils");
    qmlRegisterType<TEventTracker>("TNetwork", 1, 0, "TEventTracker");
    qmlRegisterType<OSUtils>("TQmlUtils", 1, 0, "OSUtils");
}

void registerWindowAgent(QQmlEngine &) {
    qmlRegisterType<WindowAgent>("QWindowKit", 1, 0, "WindowAgent");
}
