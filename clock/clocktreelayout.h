#pragma once

#include "clock/clockdrawing.h"
#include "clock/clockfamilies.h"

#include <QList>
#include <QPoint>
#include <QString>
#include <QStringList>

// Kind of a control placed on a clock drawing.
enum class ClockControlKind {
    Caption,    // static text in a label, translated
    Edit,       // editable line edit
    ReadOnly,   // read-only value field
    Combo,      // divider or selector combo box
    Radio,      // one button of a radio group
    Label,      // label whose text the tree writes (values, marks)
    ListButton, // "List" button of a peripheral list
};

// One control of a tree: its key, kind, place on the drawing and texts.
struct ClockControlSpec
{
    QString name; // key and object name stem ("hext", "sclkselect_1", "cap_sclk")
    ClockControlKind kind = ClockControlKind::Caption;
    QPoint pos;
    int width = 0;               // 0: natural width; for a caption, the room it may take
    const char *text = nullptr;  // source text, context "ClockTree"
    QString suffix;              // literal appended to the translated text
    QStringList items;           // combo box items
    bool translateItems = false; // items are source texts of context "ClockTree"
    QString group;               // radio group
    int value = 0;               // radio value within its group
    const char *tip = nullptr;   // tool tip source text
    int pointSize = 9;
    bool bold = false;
    // Widest a caption, text label or radio button may grow before its text is made smaller:
    // from its left end to the frame it stands in; 0 when nothing limits it.
    int room = 0;
};

// Everything a family's tree looks like: the drawing and the controls placed on it.
struct ClockTreeLayout
{
    ClockDrawing drawing;
    QList<ClockControlSpec> controls;

    const ClockControlSpec *find(const QString &name) const;
};

// The layout of a family with a tree; the empty layout for the others.
ClockTreeLayout clockTreeLayout(const ClockFamily &family);

// Items of the divider combo boxes, in the order of the firmware tables.
namespace ClockItems {
QStringList dividers(std::initializer_list<int> values);
QStringList ahb();      // /1 ... /512, nine values
QStringList apb();      // /1 ... /16
QStringList usb(int n); // /1, /1.5, ... n items
QStringList rtcdiv();   // /2 ... /31
QStringList pllfp();    // /1, /2, /4, /6 ... /30
QStringList pllfu();    // /11, /13, /12, /14, /16, /18, /20
QStringList pllmult();  // * 2 ... * 64
QStringList adcdiv();   // /2 ... /16, eight values
int ahbValue(int index);
int apbValue(int index);
int fpValue(int index);
int fuValue(int index);
int adcValue(int index);
int frValue(int index);
int hextSclkValue(int index);
int hickSclkValue(int index);
} // namespace ClockItems
