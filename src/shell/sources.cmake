list(APPEND CORE_SOURCES
  shell/Directions.cpp
  shell/Help.cpp
  shell/HelpTexts.cpp
  shell/MenuBar.cpp
  shell/PageTexts.cpp
  shell/Preferences.cpp
  shell/Startup.cpp
  shell/Welcome.cpp
  shell/WindowModes.cpp
)
