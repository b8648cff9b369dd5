#pragma once

#include <QString>

// The settings store config.xml: one child element of the root "Configuration" per key, its
// text the value. Each call opens, reads and closes the file; nothing is cached.

// Writes a new file holding only the XML declaration and an empty "Configuration" root.
// False when the file can't be opened or written.
bool CreateConfigFile(const QString &path);

// Stores in `value` the text of the first child element of the root named `key` (case-
// sensitive). False, with `value` untouched, when the file can't be read or parsed, when the
// root has no children, or when no element matches.
bool GetConfigValue(const QString &path, const QString &key, QString &value);

// Sets the first child node of every element named `key` to `value`; appends a new element
// when none exists. An element that is empty has no first child and stays empty. False when
// the file can't be read, parsed or written back.
bool SetConfigValue(const QString &path, const QString &key, const QString &value);

// Writes one setting as every writer of config.xml should: creates the file when it is
// missing, and when it exists but is not XML, sets it aside (setAsideUnreadableFile(), so the
// user is told) and starts a new one, so that a broken file can't make every later change
// fail. False when the file can't be created or written.
bool StoreConfigValue(const QString &path, const QString &key, const QString &value);
