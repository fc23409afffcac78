list(APPEND CORE_SOURCES
  search/Search.cpp
)
