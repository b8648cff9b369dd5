#pragma once

#include <QString>

// Process-wide language of the user interface and of bilingual database texts:
// 1 Chinese, 0 English. Starts at 1.
extern int g_language;

// Rule A of bilingual texts: the Chinese text in a Chinese run, else the English, with no
// fallback.
QString ResolveRuleA(const QString &en, const QString &ch);

// Rule B: as rule A, but an empty Chinese text falls back to, and is overwritten by, English.
QString ResolveRuleB(const QString &en, QString *ch);
