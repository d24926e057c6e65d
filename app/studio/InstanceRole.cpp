#include "app/studio/InstanceRole.h"

#include "app/platform/Restart.h"
#include "host/TIntegrations.h"
#include "host/TIntercom.h"

#include <QDebug>

namespace {
constexpr int SendTimeoutMs = 5000;
}

bool settleInstanceRole(const TIntegrations &integrations, TIntercom &intercom) {
    if (integrations.canMergeInstance()) {
        const QString key = integrations.mergableInstanceKey();
        if (intercom.isServer())
            intercom.setExternalEditor(key);
        else
            intercom.send(QStringLiteral("plugin:") + key + QStringLiteral("::") +
                              integrations.getDataForMerging(),
                          SendTimeoutMs);
    }
    return intercom.isServer() || intercom.waitForContinue();
}

void registerRestartHandler(const TIntegrations &integrations, const TIntercom &intercom) {
    if (integrations.isPluginMode() || !intercom.isServer()) {
        qInfo() << "Not a server instance, will not register restart handler";
        return;
    }
    const int result = System::registerRestart();
    if (result == System::NoRestartService)
        qInfo() << "This system has no restart service; --recover reopens the last session";
    else if (result != 0)
        qCritical() << "Restart handler failed to register:" << result;
    else
        qInfo() << "Registered restart handler";
}
