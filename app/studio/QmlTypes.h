#pragma once

class QQmlEngine;

/// Makes the native types known to the interface's documents, each at version 1.0 in the module they import
/// it from.
void registerQmlTypes();

/// The frameless-window library's registration, or the stand-in's.
void registerWindowAgent(QQmlEngine &engine);
