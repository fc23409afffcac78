list(APPEND CORE_SOURCES
  convert/Conversions.cpp
)
