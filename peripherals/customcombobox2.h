#pragma once

#include "peripherals/customcombobox.h"

// The combo box of table cells: a CustomComboBox with a smaller font.
class CustomComboBox2 : public CustomComboBox
{
    Q_OBJECT
public:
    explicit CustomComboBox2(QWidget *parent = nullptr);
};
