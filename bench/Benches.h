#pragma once

#include <QStringList>

/// Each prints a table of ratios against a named reference measured in the same run, and returns
/// 0 when every figure is within its bound, 1 when one is not, 2 when it could not measure.
int benchModel(const QStringList &arguments);
int benchEngine(const QStringList &arguments);
int benchImageio(const QStringList &arguments);
int benchAutopilot(const QStringList &arguments);
int benchNetwork(const QStringList &arguments);
int benchCli(const QStringList &arguments);
