#pragma once

#include "app/AppState.h"
#include "app/studio/GuiWatch.h"
#include "frontends/AppContext.h"
#include "frontends/TMathUtils.h"
#include "items/WindowsThemeListener.h"
#include "presets/TFilterGenerator.h"
#include "presets/TFormat.h"

#include <QQmlApplicationEngine>

#include <memory>

class QCoreApplication;
class TIntegrations;
class TIntercom;

/// The interface's documents and the objects that they read, from the loading of the window to its end. All
/// that is given to it outlives it, except the intercom, which may go before.
class Interface {
public:
    /// Loads the window. When that fails, the event loop ends with -1 as soon as it runs.
    Interface(QCoreApplication &application, TIntegrations &integrations, TIntercom &intercom,
              const QString &installRoot, const QString &logDirectory);
    ~Interface();
    Q_DISABLE_COPY_MOVE(Interface)

    AppState &session() { return m_session; }

private:
    AppContext m_context;
    AppState m_session;
    TFormat m_format;
    TMathUtils m_mathUtils;
    QQmlApplicationEngine m_engine;
    WindowsThemeListener m_themeListener;
    TFilterGenerator m_filterGenerator;
    std::unique_ptr<GuiWatch> m_watch;
};
