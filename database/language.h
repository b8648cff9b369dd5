#pragma once

// Process-wide language of the user interface and of bilingual database texts:
// 1 Chinese, 0 English. Starts at 1.
extern int g_language;
