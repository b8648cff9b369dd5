#pragma once

#include <QString>

// The family of the interface font that ships with the program.
QString UiFontFamily();

// Registers the shipped interface font and lets it stand for "Arial", the family that the
// drawings ask for, wherever the machine has no Arial of its own: texts are then measured and
// drawn alike on every such machine, whatever fonts it has installed. Needs the resources of
// the program and a running QApplication; false when the font could not be registered.
bool InstallUiFont();
