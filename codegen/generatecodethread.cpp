#include "codegen/generatecodethread.h"

#include "codegen/familygenerator.h"

GenerateCodeThread::GenerateCodeThread(QObject *parent) : QThread(parent) {}

void GenerateCodeThread::setGenerator(FamilyGenerator *generator, int code)
{
    familyCode = code;
    generateT110 = dynamic_cast<GenerateCode_All_T110 *>(generator);
    generateT130V130 = dynamic_cast<GenerateCode_All_T130_V130 *>(generator);
    generateT250T260V250 = dynamic_cast<GenerateCode_All_T250_T260_V250 *>(generator);
    generateT310 = dynamic_cast<GenerateCode_All_T310 *>(generator);
    generateT320W320 = dynamic_cast<GenerateCode_All_T320_W320 *>(generator);
    generateT210T220 = dynamic_cast<GenerateCode_All_T210_T220 *>(generator);
    generateT120 = dynamic_cast<GenerateCode_All_T120 *>(generator);
    generateT510T520 = dynamic_cast<GenerateCode_All_T510_T520 *>(generator);
}

FamilyGenerator *GenerateCodeThread::selectedGenerator() const
{
    const GeneratorFamily *family = generatorFamilyOf(familyCode);
    if (!family)
        return nullptr;
    const QString &n = family->generatorName;
    if (n == QLatin1String("GenerateCode_All_T110"))
        return generateT110;
    if (n == QLatin1String("GenerateCode_All_T130_V130"))
        return generateT130V130;
    if (n == QLatin1String("GenerateCode_All_T250_T260_V250"))
        return generateT250T260V250;
    if (n == QLatin1String("GenerateCode_All_T310"))
        return generateT310;
    if (n == QLatin1String("GenerateCode_All_T320_W320"))
        return generateT320W320;
    if (n == QLatin1String("GenerateCode_All_T210_T220"))
        return generateT210T220;
    if (n == QLatin1String("GenerateCode_All_T120"))
        return generateT120;
    if (n == QLatin1String("GenerateCode_All_T510_T520"))
        return generateT510T520;
    return nullptr;
}

void GenerateCodeThread::run()
{
    FamilyGenerator *generator = selectedGenerator();
    emit GenerateCodeFinished(generator && generator->generate(outputFolder));
}
