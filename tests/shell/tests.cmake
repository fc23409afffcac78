list(APPEND TEST_SOURCES
  shell/PreferencesTest.cpp
  shell/WindowModesTest.cpp
)
