list(APPEND CORE_SOURCES
  convert/Conversions.cpp
  convert/ConversionTable.cpp
  convert/TargetConversions.cpp
  convert/ConvertTab.cpp
)
