#pragma once

#include <QListView>

// The drop-down list of the program's combo boxes: fixed row height and a hover colour.
class CustomListView : public QListView
{
    Q_OBJECT
public:
    explicit CustomListView(QWidget *parent = nullptr);

    static constexpr int RowHeight = 22;
};
