list(APPEND CORE_SOURCES
  search/ReferenceLists.cpp
  search/Searchers.cpp
  search/TermMatcher.cpp
  search/SearchTab.cpp
)
