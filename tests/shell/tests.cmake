list(APPEND TEST_SOURCES
  shell/HelpTest.cpp
  shell/IntroTest.cpp
  shell/PreferencesTest.cpp
  shell/WindowModesTest.cpp
)
