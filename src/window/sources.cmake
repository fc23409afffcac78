list(APPEND CORE_SOURCES
  window/Delivery.cpp
  window/Dispatch.cpp
  window/Window1.cpp
  window/Window1Layout.cpp
)
