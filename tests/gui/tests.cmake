find_package(Qt6 REQUIRED COMPONENTS Test Widgets)
add_executable(velmora_gui_tests
  gui/GuiTestMain.cpp
  gui/HiDpiTest.cpp
  gui/IntroWindowTest.cpp
  gui/RealInputTest.cpp
  gui/RendererTest.cpp
  gui/WidgetDriver.cpp
  gui/WidgetScenarioTest.cpp
  gui/WindowFrameTest.cpp
  gui/WindowSystemTest.cpp)
target_include_directories(velmora_gui_tests PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(velmora_gui_tests PRIVATE velmora_gui velmora_console Qt6::Test GTest::gtest)
target_compile_definitions(velmora_gui_tests PRIVATE
  VELMORA_SHIPPED_DATA_DIR="${PROJECT_SOURCE_DIR}/data"
  VELMORA_SCENARIO_DIR="${CMAKE_CURRENT_SOURCE_DIR}/scenarios"
  VELMORA_GUI_SCREENS="${CMAKE_CURRENT_SOURCE_DIR}/gui/screens.json")
gtest_discover_tests(velmora_gui_tests DISCOVERY_TIMEOUT 60 PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
add_test(NAME CommandLine.WithoutADisplay
  COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/gui/without_display.sh $<TARGET_FILE:velmora>)

# End to end in a real X server: a drag from a second X client and drops by a second start; the
# window under a window manager; a Wayland session. The drag source serves as any other window.
add_executable(velmora_drag_source e2e/DragSource.cpp)
target_link_libraries(velmora_drag_source PRIVATE Qt6::Widgets)
add_test(NAME EndToEnd.DragAndDropInARealXServer
  COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/e2e/drag_and_drop.sh $<TARGET_FILE:velmora>
          $<TARGET_FILE:velmora_drag_source> ${PROJECT_SOURCE_DIR}/data)
set_tests_properties(EndToEnd.DragAndDropInARealXServer PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 90 LABELS e2e)
add_test(NAME EndToEnd.WindowUnderAWindowManager
  COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/e2e/window_manager.sh $<TARGET_FILE:velmora>
          $<TARGET_FILE:velmora_drag_source> ${PROJECT_SOURCE_DIR}/data)
add_test(NAME EndToEnd.WaylandSession
  COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/e2e/wayland_session.sh $<TARGET_FILE:velmora> ${PROJECT_SOURCE_DIR}/data)
set_tests_properties(EndToEnd.WindowUnderAWindowManager EndToEnd.WaylandSession PROPERTIES
  SKIP_RETURN_CODE 77 TIMEOUT 90 LABELS e2e)
