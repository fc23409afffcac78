list(APPEND CORE_SOURCES
  search/ReferenceCache.cpp
  search/ReferenceLists.cpp
  search/Searchers.cpp
  search/TermMatcher.cpp
  search/SearchTab.cpp
)
