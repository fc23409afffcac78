#pragma once
// The menu bar on screen: a thin bar along the top of the expanded window would hide the
// target in the small one, so the menus open from a right click anywhere on the window and
// their shortcuts (Ctrl for Cmd) work in every size.

class QWidget;

void InstallMenus(QWidget& window);
