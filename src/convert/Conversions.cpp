// Subsystem 4, unit conversion: its handlers joined to their controls.

#include "window/Window1.h"

void Window1::WireConversions() {
    PopupMenu2.Open = [this] { PopupMenu2_Open(); };
    PopupMenu2.Change = [this] { PopupMenu2_Change(); };
    popconvert.Change = [this] { popconvert_Change(); };
    popconvert.MouseDown = [this](int x, int y) { return popconvert_MouseDown(x, y); };
    popconvert.MouseExit = [this] { popconvert_MouseExit(); };
    Listbox1.CellClick = [this](int row, int column, int x, int y) { return Listbox1_CellClick(row, column, x, y); };
    Listbox2.CellClick = [this](int row, int column, int x, int y) { return Listbox2_CellClick(row, column, x, y); };
    RadioButton7.Action = [this] { RadioButton7_Action(); };
    RadioButton8.Action = [this] { RadioButton8_Action(); };
    RadioButton9.Action = [this] { RadioButton9_Action(); };
    PushButton44.Action = [this] { PushButton44_Action(); };
}
