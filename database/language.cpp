#include "database/language.h"

int g_language = 1;
