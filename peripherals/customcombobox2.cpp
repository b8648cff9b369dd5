#include "peripherals/customcombobox2.h"

CustomComboBox2::CustomComboBox2(QWidget *parent) : CustomComboBox(parent)
{
    QFont f(QStringLiteral("Arial"));
    f.setPointSize(8);
    setFont(f);
}
