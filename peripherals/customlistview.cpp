#include "peripherals/customlistview.h"

CustomListView::CustomListView(QWidget *parent) : QListView(parent)
{
    setUniformItemSizes(true);
    setStyleSheet(QStringLiteral("QListView::item{height:%1px;}"
                                 "QListView::item:hover{background-color:rgb(198, 232, 236);"
                                 "color:black;}"
                                 "QListView::item:disabled{color:rgb(160, 160, 160);}")
                      .arg(RowHeight));
}
