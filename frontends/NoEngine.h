#pragma once

#include "contracts/ProcessingBackend.h"

/// Used where no engine was handed in: every answer says so.
class NoEngine : public ProcessingBackend {
public:
    QVariantMap catalogue(const QString &) override { return {}; }
    AutopilotAnswer analyse(const EngineInput &, const AutopilotOptions &, const RunControl &) override {
        return {.error = message()};
    }
    ProcResult process(const ProcRequest &, const RunControl &) override { return {.error = message()}; }
    void clearCache(const QString &) override {}

private:
    static QString message() { return QStringLiteral("No processing engine is available."); }
};
