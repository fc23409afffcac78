list(APPEND TEST_SOURCES
  convert/ConversionTableTest.cpp
  convert/TargetConversionsTest.cpp
  convert/ConvertTabTest.cpp
)
