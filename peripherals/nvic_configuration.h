#pragma once

#include <QWidget>

class NVIC_Settings;
class NvicModel;
class QComboBox;
class QLabel;
class QPushButton;

// The panel of the tree's entry "NVIC": priority group, show filter and the table of all
// interrupts, over the shared NvicModel.
class NVIC_Configuration : public QWidget
{
    Q_OBJECT
public:
    explicit NVIC_Configuration(NvicModel *model, QWidget *parent = nullptr);

    NvicModel *model() const { return m_model; }
    QComboBox *priorityGroupBox() const { return m_group; }
    QComboBox *showTypeBox() const { return m_show; }
    NVIC_Settings *table() const { return m_table; }
    void retranslateUi();

public slots:
    void NVICShowType_ComboBox_IndexChanged(int index);
    void NVICPriorityGroup_ComboBox_IndexChanged(int index);

private:
    void syncControls();

    NvicModel *m_model;
    QPushButton *m_header = nullptr;
    QLabel *m_section = nullptr;
    QLabel *m_groupLabel = nullptr;
    QComboBox *m_group = nullptr;
    QLabel *m_showLabel = nullptr;
    QComboBox *m_show = nullptr;
    NVIC_Settings *m_table = nullptr;
};
