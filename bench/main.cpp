#include "Benches.h"

#include <QCoreApplication>

#include <cstdio>
#include <vector>

namespace {

struct Bench {
    const char *name;
    int (*run)(const QStringList &);
};

const std::vector<Bench> &benches() {
    static const std::vector<Bench> all = {
#ifdef ORVANE_BENCH_MODEL
        {"model", benchModel},
#endif
#ifdef ORVANE_BENCH_ENGINE
        {"engine", benchEngine},
        {"network", benchNetwork},
#endif
#ifdef ORVANE_BENCH_ENGINE
        {"autopilot", benchAutopilot},
#endif
#ifdef ORVANE_BENCH_IMAGEIO
        {"imageio", benchImageio},
#endif
#ifdef ORVANE_BENCH_CLI
        {"cli", benchCli},
#endif
    };
    return all;
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString only = arguments.isEmpty() ? QString() : arguments.takeFirst();
    int worst = 0;
    bool found = only.isEmpty();
    for (const Bench &bench : benches()) {
        if (!only.isEmpty() && only != QLatin1String(bench.name))
            continue;
        found = true;
        std::printf("== %s\n", bench.name);
        worst = std::max(worst, bench.run(arguments));
        std::fflush(stdout);
    }
    if (!found) {
        std::fprintf(stderr, "orvane-bench: no benchmark of that name. There are:");
        for (const Bench &bench : benches())
            std::fprintf(stderr, " %s", bench.name);
        std::fprintf(stderr, "\n");
        return 2;
    }
    return worst;
}
