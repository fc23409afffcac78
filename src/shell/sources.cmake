list(APPEND CORE_SOURCES
  shell/Directions.cpp
  shell/Help.cpp
  shell/HelpTexts.cpp
  shell/IntroTexts.cpp
  shell/MenuBar.cpp
  shell/PageTexts.cpp
  shell/Preferences.cpp
  shell/Startup.cpp
  shell/Welcome.cpp
  shell/Window2.cpp
  shell/WindowModes.cpp
)
