#include "shell/MenuBar.h"

const std::vector<MenuItemInfo>& MenuBar1() {
    static const std::vector<MenuItemInfo> items = {
        {"FileMenu", "", "&File", ""},
        {"FileQuit", "FileMenu", "&Quit", "Cmd+Q"},
        {"EditMenu", "", "&Edit", ""},
        {"EditUndo", "EditMenu", "&Undo", "Cmd+Z"},
        {"UntitledMenu1", "EditMenu", "-", ""},
        {"EditCut", "EditMenu", "Cu&t", "Cmd+X"},
        {"EditCopy", "EditMenu", "&Copy", "Cmd+C"},
        {"EditPaste", "EditMenu", "&Paste", "Cmd+V"},
        {"EditClear", "EditMenu", "&Delete", ""},
        {"UntitledMenu0", "EditMenu", "-", ""},
        {"EditSelectAll", "EditMenu", "Select &All", "Cmd+A"},
    };
    return items;
}
