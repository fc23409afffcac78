list(APPEND CORE_SOURCES
  shell/Directions.cpp
  shell/Help.cpp
  shell/MenuBar.cpp
  shell/Preferences.cpp
  shell/Startup.cpp
  shell/WindowModes.cpp
)
