list(APPEND TEST_SOURCES
  search/SearchTest.cpp
)
