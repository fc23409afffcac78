#pragma once
// The one menu bar: the File and Edit menus and nothing of the program's own. The Edit commands
// are the platform's standard ones for the text control that has the focus.

#include <string>
#include <vector>

struct MenuItemInfo {
    const char* name;      // MenuBar1's item name
    const char* menu;      // the menu it stands in, or "" for a menu title
    const char* text;      // "&" marks the mnemonic, "-" a separator
    const char* shortcut;  // "Cmd+Q", or "" for none
};

// In menu order.
const std::vector<MenuItemInfo>& MenuBar1();
