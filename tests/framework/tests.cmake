list(APPEND TEST_SOURCES
  framework/ControlsTest.cpp
  framework/FilesTest.cpp
  framework/NumbersTest.cpp
  framework/TextTest.cpp
  framework/XmlRegExTest.cpp
)
