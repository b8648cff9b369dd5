#include "database/language.h"

int g_language = 1;

QString ResolveRuleA(const QString &en, const QString &ch)
{
    return g_language == 1 ? ch : en;
}

QString ResolveRuleB(const QString &en, QString *ch)
{
    if (g_language != 1)
        return en;
    if (ch->isEmpty())
        *ch = en;
    return *ch;
}
