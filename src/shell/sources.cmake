list(APPEND CORE_SOURCES
  shell/Preferences.cpp
  shell/Startup.cpp
)
