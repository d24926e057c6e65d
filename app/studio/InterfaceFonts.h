#pragma once

/// Adds Inter in its five weights from the resources and makes it the application's font, at the size that
/// the documents start from. A missing resource is logged and leaves the family by name.
void setInterfaceFont();

/// The window's background before any document paints.
void setInterfacePalette();
