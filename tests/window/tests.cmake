list(APPEND TEST_SOURCES
  window/DropTest.cpp
  window/LayoutTest.cpp
)
