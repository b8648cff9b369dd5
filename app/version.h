#pragma once

// The program's name and version, shared by the window titles, the about box and the check
// for a newer version. Kept as literals so that they work with QStringLiteral.
#define MQ48_VERSION_SHORT "V1.0.08"
#define MQ48_VERSION_TITLE "MQ48 Pin Forge " MQ48_VERSION_SHORT
