find_package(Qt6 REQUIRED COMPONENTS Widgets Multimedia Network)
set(CMAKE_AUTOMOC OFF)
add_library(velmora_gui STATIC
  gui/ButtonBindings.cpp
  gui/ControlBinding.cpp
  gui/FrameStyle.cpp
  gui/FullWindowPicture.cpp
  gui/InstanceAddress.cpp
  gui/ListBindings.cpp
  gui/MenuView.cpp
  gui/Options.cpp
  gui/QtPlatform.cpp
  gui/SingleInstance.cpp
  gui/TerminationSignals.cpp
  gui/TextBindings.cpp
  gui/WindowSystem.cpp
  gui/WindowView.cpp
)
target_link_libraries(velmora_gui PUBLIC velmora_console Qt6::Widgets Qt6::Multimedia Qt6::Network)
add_executable(velmora gui/main.cpp)
target_link_libraries(velmora PRIVATE velmora_gui)
install(TARGETS velmora RUNTIME DESTINATION bin)
# Makes the introduction's pictures of the main window (tools/make_fullwindow.sh); not installed.
add_executable(velmora-fullwindow gui/FullWindowTool.cpp)
target_link_libraries(velmora-fullwindow PRIVATE velmora_gui)
