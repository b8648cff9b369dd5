#pragma once

#include <QTabBar>
#include <QTabWidget>

// Side tab bar of the code view: wide tabs with the file names written across them.
class CodeTabBar : public QTabBar
{
public:
    static constexpr int kTabWidth = 242;
    static constexpr int kTabHeight = 60;

    explicit CodeTabBar(QWidget *parent = nullptr);

    // The colours of the tabs, the current one set apart.
    static QColor tabColor(bool selected);

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void paintEvent(QPaintEvent *event) override;
};

// Tab widget of the code view, with its tabs on the left-hand side.
class CodeTabWidget : public QTabWidget
{
public:
    explicit CodeTabWidget(QWidget *parent = nullptr);

    CodeTabBar *codeTabBar() const;
};
