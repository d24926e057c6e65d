#include "app/Composition.h"
#include "app/Directories.h"
#include "app/LogStart.h"
#include "app/TLogger.h"
#include "app/platform/System.h"
#include "cli/CLIApplication.h"
#include "cli/StatusLine.h"
#include "frontends/AppContext.h"
#include "system/Identity.h"

#include <QDebug>

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <span>
#include <string_view>

namespace {

bool given(std::span<char *const> arguments, std::initializer_list<std::string_view> names) {
    return std::ranges::any_of(arguments, [&](std::string_view argument) {
        return std::ranges::find(names, argument) != names.end();
    });
}

int runBatch(int argc, char **argv, const QString &modelDirectory, const QString &logDirectory) {
    const AppContext context(modelDirectory, logDirectory);
    joinBackends();
    CLIApplication application(argc, argv);
    return application.run(context);
}

} // namespace

// The console's entry point for batch work.
int main(int argc, char **argv) {
    System::setConsoleUtf8();
    const std::span<char *const> arguments(argv + std::min(argc, 1), argv + argc);
    if (given(arguments, {"--help", "-h"})) {
        CLIApplication::printUsage();
        return 0;
    }

    constexpr int infoLevel = 1;
    constexpr int warningLevel = 2;
    const bool verbose = given(arguments, {"--verbose", "-v", "--log"});
    const auto environment = Directories::Environment::ofProcess();
    // Log lines and the batch run's status line share the terminal.
    TLogger::setConsoleGuard([] { return std::make_shared<StatusLine::Pause>(); });
    const QString logDirectory = startLog(true, verbose ? infoLevel : warningLevel);
    qInfo().noquote() << "Starting" << Identity::productName() << Identity::version();
    Identity::setOnApplication();
    const QString modelDirectory = Directories::modelDirectory(Directories::installRoot(environment));
    const int code = runBatch(argc, argv, modelDirectory, logDirectory);
    TLogger::shutdown();
    return code;
}
