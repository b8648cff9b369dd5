#pragma once

#include <QString>
#include <QThread>

class FamilyGenerator;
class GenerateCode_All_T110;
class GenerateCode_All_T130_V130;
class GenerateCode_All_T250_T260_V250;
class GenerateCode_All_T310;
class GenerateCode_All_T320_W320;
class GenerateCode_All_T210_T220;
class GenerateCode_All_T120;
class GenerateCode_All_T510_T520;

// Runs one family generator off the GUI thread and reports whether all files were written.
class GenerateCodeThread : public QThread
{
    Q_OBJECT
public:
    explicit GenerateCodeThread(QObject *parent = nullptr);

    // Sets the pointer of the generator's class (the others are cleared) and the family code.
    void setGenerator(FamilyGenerator *generator, int familyCode);
    // The generator the run will use for the family code, or nullptr.
    FamilyGenerator *selectedGenerator() const;

    int familyCode = 0;
    QString outputFolder;
    GenerateCode_All_T110 *generateT110 = nullptr;
    GenerateCode_All_T130_V130 *generateT130V130 = nullptr;
    GenerateCode_All_T250_T260_V250 *generateT250T260V250 = nullptr;
    GenerateCode_All_T310 *generateT310 = nullptr;
    GenerateCode_All_T320_W320 *generateT320W320 = nullptr;
    GenerateCode_All_T210_T220 *generateT210T220 = nullptr;
    GenerateCode_All_T120 *generateT120 = nullptr;
    GenerateCode_All_T510_T520 *generateT510T520 = nullptr;

signals:
    void GenerateCodeFinished(bool flag);

protected:
    void run() override;
};
