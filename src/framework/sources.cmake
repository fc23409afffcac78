list(APPEND CORE_SOURCES
  framework/Buttons.cpp
  framework/Control.cpp
  framework/EventBoundary.cpp
  framework/FolderItem.cpp
  framework/HomeLock.cpp
  framework/Folders.cpp
  framework/Panels.cpp
  framework/RecordingPlatform.cpp
  framework/RegEx.cpp
  framework/RowControls.cpp
  framework/SafeWrite.cpp
  framework/Numbers.cpp
  framework/Text.cpp
  framework/TextControl.cpp
  framework/Window.cpp
  framework/Xml.cpp
)
